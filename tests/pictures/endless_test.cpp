#include "hosts/pictures/picture_device.h"
#include "hosts/pictures/picture_reader.h"
#include "hosts/pictures/pictures.h"
#include "platform/posix/regular_file.h"
#include "platform/posix/worker.h"

#include "samples.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

// What is no file with an end: everything here would wait, or read on forever.

namespace tavo::pictures {
namespace {

using namespace std::string_literals;
using Clock = std::chrono::steady_clock;

double SecondsSince(Clock::time_point begin)
{
    return std::chrono::duration<double>(Clock::now() - begin).count();
}

TEST(PictureEndless, Only_regular_files_are_opened)
{
    const TempFolder folder("pictures_special");
    folder.MakeFolder("folder.png");
    ASSERT_EQ(::mkfifo(folder.Path("pipe.png").c_str(), 0600), 0);
    folder.MakeLink("link to pipe", "pipe.png");
    folder.MakeLink("circle", "circle");
    folder.MakeLink("nowhere", "nothing");
    folder.Write("empty.png");
    const std::string paths[] = {
        folder.Path("folder.png"),
        folder.Path("pipe.png"),
        folder.Path("link to pipe"),
        folder.Path("circle"),
        folder.Path("nowhere"),
        folder.Path("empty.png"),
        "/dev/zero",
        "/dev/null",
        "/dev/tty",
        "/proc/self/environ",
        "",
        "relative",
        folder.Path("empty.png\0picture"s),
    };
    const auto begin = Clock::now();
    for (const std::string& path : paths) {
        EXPECT_FALSE(Load(path)) << path;
        EXPECT_FALSE(Size(path)) << path;
        EXPECT_EQ(Bitmap_Load(path, 64, 64), nullptr) << path;
    }
    EXPECT_LT(SecondsSince(begin), 5);
}

TEST(PictureEndless, A_link_to_a_picture_is_read)
{
    const TempFolder folder("pictures_link");
    folder.Write("picture", Bytes_Of(Image_Colours({8, 8}), "png"));
    folder.MakeLink("link", "picture");
    EXPECT_TRUE(Load(folder.Path("link")));
}

TEST(PictureEndless, A_file_that_grows_is_read_as_it_was_when_it_was_opened)
{
    const TempFolder folder("pictures_growing");
    folder.Write("picture", "abc");
    const auto file = RegularFile::Open(folder.Path("picture"));
    ASSERT_TRUE(file);
    std::ofstream(folder.Path("picture"), std::ios::app) << "defghi";
    char bytes[16];
    EXPECT_EQ(file->Read(0, bytes, sizeof bytes), 3u);
    EXPECT_EQ(file->Read(3, bytes, sizeof bytes), 0u);
    EXPECT_EQ(file->Read(2, bytes, sizeof bytes), 1u);
    EXPECT_EQ(bytes[0], 'c');
    std::filesystem::resize_file(folder.Path("picture"), 1);
    EXPECT_EQ(file->Read(0, bytes, sizeof bytes), 1u);
}

// A good beginning, and a terabyte of nothing behind it.
TEST(PictureEndless, A_file_without_visible_end_is_none)
{
    const TempFolder folder("pictures_sparse");
    constexpr std::uintmax_t terabyte = std::uintmax_t{1} << 40;
    for (const Sample& sample : Samples()) {
        folder.Write("picture", sample.Bytes.substr(0, sample.Bytes.size() / 2));
        std::error_code error;
        std::filesystem::resize_file(folder.Path("picture"), terabyte, error);
        ASSERT_FALSE(error) << error.message();
        const auto begin = Clock::now();
        EXPECT_FALSE(Load(folder.Path("picture"))) << sample.Name;
        EXPECT_FALSE(Size(folder.Path("picture"))) << sample.Name;
        EXPECT_LT(SecondsSince(begin), 20) << sample.Name;
    }
}

// As is needed where a small file makes a decoder go over its dots again and
// again.
TEST(PictureEndless, A_decoder_whose_time_is_over_finds_the_file_at_its_end)
{
    const TempFolder folder("pictures_time");
    folder.Write("picture", std::string(1000, 'x'));
    const auto file = RegularFile::Open(folder.Path("picture"));
    ASSERT_TRUE(file);
    PictureDevice device(*file, 1000);
    EXPECT_EQ(device.read(10), QByteArray(10, 'x'));
    EXPECT_FALSE(device.IsOutOfTime());
    device.Restart(-1);
    EXPECT_EQ(device.read(10), QByteArray());
    EXPECT_TRUE(device.IsOutOfTime());
}

TEST(PictureEndless, A_worker_is_killed_when_its_time_is_over)
{
    const int nothing = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
    const auto begin = Clock::now();
    auto worker = Worker::Start("/bin/sh", {}, nothing, std::chrono::seconds(60));
    ::close(nothing);
    // It has nothing to do, and ends without a word.
    ASSERT_TRUE(worker);
    char byte;
    EXPECT_FALSE(worker->Read(&byte, 1));
    int ends[2];
    ASSERT_EQ(::pipe2(ends, O_CLOEXEC), 0);
    {
        // It waits for input that never comes.
        auto waiting = Worker::Start("/bin/cat", {"cat"}, ends[0], std::chrono::milliseconds(50));
        ASSERT_TRUE(waiting);
        EXPECT_FALSE(waiting->Read(&byte, 1));
    }
    ::close(ends[0]);
    ::close(ends[1]);
    EXPECT_LT(SecondsSince(begin), 20);
    EXPECT_FALSE(Worker::Start("/nonexistent/program", {}, 0, std::chrono::seconds(1)));
}

TEST(PictureEndless, A_worker_hands_over_what_it_prints)
{
    const TempFolder folder("pictures_worker");
    folder.Write("words", std::string(200'000, 'a') + "end");
    const auto file = RegularFile::Open(folder.Path("words"));
    ASSERT_TRUE(file);
    auto worker = Worker::Start("/bin/cat", {}, file->Number(), std::chrono::seconds(30));
    ASSERT_TRUE(worker);
    std::string bytes(200'003, '\0');
    EXPECT_TRUE(worker->Read(bytes.data(), bytes.size()));
    EXPECT_EQ(bytes.substr(200'000), "end");
    EXPECT_FALSE(worker->Read(bytes.data(), 1));
}

} // namespace
} // namespace tavo::pictures
