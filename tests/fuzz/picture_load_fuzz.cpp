#include "fuzz/require.h"
#include "hosts/pictures/confined.h"
#include "hosts/pictures/decode.h"
#include "hosts/pictures/icon_folder.h"
#include "hosts/pictures/orientation.h"
#include "hosts/pictures/picture_device.h"

#include <algorithm>
#include <cstring>
#include <sys/mman.h>
#include <unistd.h>

// The input is the beginning of a file of pictures, or what a worker prints.
// What is tried is our own: how a kind is told, the number of a camera's turn,
// an icon's folder, sizes, and the talk with the worker. No worker is started,
// and no dot decoded.

namespace tavo::pictures {
namespace {

RegularFile File_Of(std::string_view bytes)
{
    const int number = ::memfd_create("input", MFD_CLOEXEC);
    const bool whole = ::write(number, bytes.data(), bytes.size()) == std::ssize(bytes);
    auto file = RegularFile::Take(number);
    Require(whole && file, "there is a file to read");
    return std::move(*file);
}

// A number of so many bytes, or none beyond the end.
std::optional<std::uint64_t> Number(std::string_view bytes, std::uint64_t at, std::uint64_t count,
                                    bool bigEnd)
{
    if (at + count > bytes.size())
        return std::nullopt;
    std::uint64_t number = 0;
    for (std::uint64_t i = 0; i < count; ++i)
        number |= std::uint64_t{static_cast<unsigned char>(bytes[at + i])}
                  << 8 * (bigEnd ? count - 1 - i : i);
    return number;
}

void Kind_Check(std::string_view bytes)
{
    const std::string_view head = bytes.substr(0, headBytes);
    const KindRules* const rules = Kind_Find(head, bytes.size());
    if (rules == nullptr)
        return;
    const auto kinds = Kinds_All();
    Require(rules >= kinds.data() && rules < kinds.data() + kinds.size(), "a kind is of the table");
    // What more the file holds does not make it another picture.
    const bool isBySize = rules->Kind == PictureKind::Wbmp || rules->Kind == PictureKind::Tga;
    Require(isBySize || Kind_Find(head, std::uint64_t{bytes.size()} * 2 + 1) == rules,
            "a kind with a mark is told by its beginning");
    Require(Kind_OfFile(File_Of(bytes)) == rules, "a file is of the kind of its bytes");
}

// The number that the first folder gives to the turn, 1 where it gives none.
std::uint64_t Model_Turn(std::string_view block)
{
    constexpr std::uint64_t entrySize = 12, tag = 0x112;
    if (block.starts_with(std::string_view("Exif\0\0", 6)))
        block.remove_prefix(6);
    const bool bigEnd = block.substr(0, 2) == "MM";
    if (!bigEnd && block.substr(0, 2) != "II")
        return 1;
    const std::uint64_t folder = Number(block, 4, 4, bigEnd).value_or(0);
    const std::uint64_t entries = Number(block, folder, 2, bigEnd).value_or(0);
    for (std::uint64_t i = 0; i < entries; ++i)
        if (Number(block, folder + 2 + i * entrySize, 2, bigEnd) == tag)
            return Number(block, folder + 2 + i * entrySize + 8, 2, bigEnd).value_or(1);
    return 1;
}

void Turn_Check(std::string_view bytes)
{
    const std::uint64_t number = Model_Turn(bytes);
    const Turn turn = Turn_OfExif(bytes);
    Require(turn == Turn_OfNumber(static_cast<unsigned>(number)), "the turn is the folder's",
            std::to_string(number));
    Require(Turn_Swaps(turn) == (number >= 5 && number <= 8), "four turns swap the sides");
    const RegularFile file = File_Of(bytes);
    for (const PictureKind kind : {PictureKind::Png, PictureKind::WebP}) {
        const Turn inChunks = Turn_InChunks(file, kind);
        const bool isThere = bytes.find(kind == PictureKind::Png ? "eXIf" : "EXIF") != bytes.npos;
        Require(isThere || inChunks == QImageIOHandler::TransformationNone,
                "without a block nothing is turned");
    }
    Require(Turn_InChunks(file, PictureKind::Gif) == QImageIOHandler::TransformationNone,
            "a format without such blocks is not turned");
}

void Icon_Check(std::string_view bytes)
{
    const int largest = Icon_FindLargest(File_Of(bytes));
    const std::uint64_t images =
        std::min<std::uint64_t>(256, Number(bytes, 4, 2, false).value_or(0));
    std::uint64_t best = 0, model = 0;
    for (std::uint64_t i = 0; i < images && 6 + (i + 1) * 16 <= bytes.size(); ++i) {
        const auto side = [&](std::uint64_t place) {
            const std::uint64_t told = *Number(bytes, 6 + i * 16 + place, 1, false);
            return told == 0 ? 256 : told;
        };
        const std::uint64_t rank =
            (side(0) * side(1)) << 32 | *Number(bytes, 6 + i * 16 + 8, 4, false);
        if (rank > best) {
            best = rank;
            model = i;
        }
    }
    Require(static_cast<std::uint64_t>(largest) == model, "the largest image is taken",
            std::to_string(largest));
}

// Sizes of any number, as a file tells them.
void Size_Check(std::string_view bytes)
{
    std::int32_t sides[4] = {};
    std::memcpy(sides, bytes.data(), std::min(bytes.size(), sizeof sides));
    const QSize full(sides[0], sides[1]), bound(sides[2], sides[3]);
    const bool fits = Size_IsFit(full);
    Require(!fits || (full.width() > 0 && full.height() > 0 && Dots_Of(full) <= largestDots),
            "a size that fits has dots, and not too many");
    const QSize wanted = Size_Fit(full, bound);
    if (full.isEmpty() || bound.isEmpty())
        return Require(wanted == full, "without a bound a size stays");
    Require(wanted.width() >= 1 && wanted.height() >= 1, "what is shrunk keeps a dot");
    Require(wanted.width() <= bound.width() && wanted.height() <= bound.height(),
            "what is shrunk fits in");
    Require(wanted == full || wanted.width() == bound.width() || wanted.height() == bound.height(),
            "what is shrunk fills the bound");
    Require(wanted.width() <= full.width() && wanted.height() <= full.height(),
            "nothing is made larger");
}

// What the beginning tells of the picture's size is either good or not told.
void Told_Check(std::string_view bytes)
{
    const RegularFile file = File_Of(bytes);
    const KindRules* const rules = Kind_OfFile(file);
    if (rules == nullptr || rules->Confined)
        return;
    const auto size = File_Size(file, *rules);
    Require(!size || Size_IsFit(*size), "a size that is told fits");
    Require(!size || rules->DotsPerByte == 0 || Dots_Of(*size) <= freeDots
                || static_cast<std::uint64_t>(Dots_Of(*size)) / rules->DotsPerByte <= bytes.size(),
            "a size that is told is one that such a file can hold");
}

// Takes `bytes` for what a worker prints.
void Printed_Check(std::string_view bytes, QSize bound)
{
    std::size_t at = 0;
    const auto loaded = Confined_Take(
        [&](char* target, std::size_t count) {
            if (count > bytes.size() - at)
                return false;
            std::memcpy(target, bytes.data() + at, count);
            at += count;
            return true;
        },
        bound);
    if (!loaded)
        return;
    const QImage& image = loaded->Image;
    Require(Size_IsFit(loaded->FullSize), "a picture from a worker has a size that fits");
    Require(image.size() == Size_Fit(loaded->FullSize, bound), "it is as large as was asked for");
    const auto dots = static_cast<std::size_t>(image.sizeInBytes());
    Require(at == sizeof(ConfinedHead) + dots
                && std::memcmp(bytes.data() + sizeof(ConfinedHead), image.constBits(), dots) == 0,
            "its dots are those that were printed");
}

void Worker_Check(std::string_view bytes)
{
    const QSize bound(1 + static_cast<int>(bytes.size() % 61), 48);
    Printed_Check(bytes, bound);
    ConfinedHead head;
    if (bytes.size() < sizeof head)
        return;
    // The same with a mark, and then with the size that was asked for.
    std::memcpy(&head, bytes.data(), sizeof head);
    std::string marked(bytes);
    head.Mark = ConfinedHead::mark;
    std::memcpy(marked.data(), &head, sizeof head);
    Printed_Check(marked, bound);
    const QSize size = Size_Fit({head.FullWidth, head.FullHeight}, bound);
    head.Width = size.width();
    head.Height = size.height();
    std::memcpy(marked.data(), &head, sizeof head);
    Printed_Check(marked, bound);
}

// Reads as a decoder might: pieces of any length from any place.
void Device_Check(std::string_view bytes)
{
    constexpr double seconds = 1000;
    constexpr int mostReads = 64;
    const RegularFile file = File_Of(bytes);
    PictureDevice device(file, seconds);
    const std::string_view plan = bytes.substr(0, mostReads);
    for (std::size_t i = 0; i + 1 < plan.size(); i += 2) {
        const auto place = static_cast<unsigned char>(plan[i]) * std::size_t{13};
        const auto count = static_cast<unsigned char>(plan[i + 1]) * std::size_t{5};
        if (!device.seek(static_cast<qint64>(place)))
            continue;
        const QByteArray got = device.read(static_cast<qint64>(count));
        const std::string_view wanted =
            place < bytes.size() ? bytes.substr(place, count) : std::string_view();
        Require(got.toStdString() == wanted, "a device gives the bytes of its file");
        Require(wanted.size() == count || device.HadShortRead(), "a short read is seen");
        Require(count == 0 || !wanted.empty() || device.HadEmptyRead(), "an empty read is seen");
    }
    Require(!device.IsOutOfTime(), "there was time enough");
}

} // namespace
} // namespace tavo::pictures

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    // What readers complain about is what they are given here.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace tavo::pictures;
    const std::string_view bytes = tavo::Input_Text(data, size);
    Kind_Check(bytes);
    Turn_Check(bytes);
    Icon_Check(bytes);
    Size_Check(bytes);
    Told_Check(bytes);
    Worker_Check(bytes);
    Device_Check(bytes);
    return 0;
}
