#include "hosts/pictures/picture_reader.h"
#include "hosts/pictures/pictures.h"

#include "drawing_samples.h"
#include "samples.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <random>
#include <sys/resource.h>

// Pictures that are broken, by accident or by intent.

namespace tavo::pictures {
namespace {

using namespace std::string_literals;

// How often to try: what goes to another process each time costs more.
int Rounds(const Sample& sample, int few, int many)
{
    if (std::getenv("TAVO_LONG") == nullptr)
        return few;
    const auto kinds = Kinds_All();
    return std::ranges::find(kinds, sample.Kind, &KindRules::Kind)->Confined ? many / 40 : many;
}

const Sample& Sample_Find(const std::string& name)
{
    const auto found = std::ranges::find(Samples(), name, &Sample::Name);
    EXPECT_NE(found, Samples().end()) << name;
    return *found;
}

// What of a picture's end can be missing without loss: ends of lines and the
// like, checksums behind the last dot, room that nobody reads.
std::size_t Spare(const Sample& sample)
{
    switch (sample.Kind) {
    case PictureKind::Gif: return 2;
    case PictureKind::Xbm: return 6;
    case PictureKind::Xpm: return 4;
    case PictureKind::Svg: return 1;
    case PictureKind::Svgz: return 9;
    case PictureKind::Png: return 16;
    case PictureKind::Mng: return 64;
    default: return 0;
    }
}

TEST(PictureDamage, A_picture_cut_short_is_none)
{
    const TempFolder folder("pictures_cut");
    for (const Sample& sample : Samples()) {
        const std::size_t needed = sample.Bytes.size() - Spare(sample);
        for (int sixteenths = 0; sixteenths < 16; ++sixteenths) {
            const std::size_t left = needed * static_cast<std::size_t>(sixteenths) / 16;
            folder.Write("picture", sample.Bytes.substr(0, left));
            EXPECT_FALSE(Load(folder.Path("picture")))
                << sample.Name << ": " << left << " of " << sample.Bytes.size() << " bytes";
        }
        folder.Write("picture", sample.Bytes.substr(0, needed - 1));
        EXPECT_FALSE(Load(folder.Path("picture"), {16, 16})) << sample.Name << ": a byte less";
    }
}

// What a hanging decoder is given, and as much again for a busy machine.
constexpr double mostSeconds = 20;

// Loads it in every way; what comes out must be a picture or none.
void Try(const TempFolder& folder, const std::string& bytes, const std::string& what)
{
    folder.Write("picture", bytes);
    for (const QSize bound : {QSize(), QSize(16, 16)}) {
        const auto begin = std::chrono::steady_clock::now();
        const auto loaded = Load(folder.Path("picture"), bound);
        const std::chrono::duration<double> spent = std::chrono::steady_clock::now() - begin;
        EXPECT_LT(spent.count(), mostSeconds) << what;
        if (loaded) {
            EXPECT_FALSE(loaded->Image.isNull()) << what;
            EXPECT_EQ(loaded->Image.size(), Size_Fit(loaded->FullSize, bound)) << what;
        }
    }
}

TEST(PictureDamage, Flipped_bits_harm_nobody)
{
    const TempFolder folder("pictures_bits");
    std::mt19937 chance(20240607);
    for (const Sample& sample : Samples()) {
        const int rounds = Rounds(sample, 12, 4000);
        for (int round = 0; round < rounds; ++round) {
            std::string bytes = sample.Bytes;
            // The header is small, and most of what can go wrong is there.
            const std::size_t reach =
                round % 2 == 0 ? std::min<std::size_t>(bytes.size(), 96) : bytes.size();
            const auto flips = 1 + chance() % 8;
            for (unsigned flip = 0; flip < flips; ++flip)
                Bit_Flip(bytes[chance() % reach], chance() % 8);
            Try(folder, bytes, sample.Name + ", round " + std::to_string(round));
        }
    }
}

TEST(PictureDamage, Numbers_at_their_limits_harm_nobody)
{
    const TempFolder folder("pictures_limits");
    std::mt19937 chance(7);
    const std::string limits[] = {"\0\0\0\0"s,        "\xff\xff\xff\xff", "\x7f\xff\xff\xff",
                                  "\xff\xff\xff\x7f", "\x80\0\0\0"s,      "\0\0\0\x80"s};
    for (const Sample& sample : Samples())
        for (int round = 0; round < Rounds(sample, 8, 1500); ++round) {
            std::string bytes = sample.Bytes;
            const std::size_t at = chance() % std::min<std::size_t>(bytes.size() - 4, 64);
            bytes.replace(at, 4, limits[chance() % std::size(limits)]);
            Try(folder, bytes, sample.Name + ", number at " + std::to_string(at));
        }
}

TEST(PictureDamage, Rubbish_behind_a_good_beginning_harms_nobody)
{
    const TempFolder folder("pictures_rubbish");
    std::mt19937 chance(99);
    for (const Sample& sample : Samples())
        for (int round = 0; round < Rounds(sample, 4, 1500); ++round) {
            std::string bytes = sample.Bytes.substr(0, chance() % sample.Bytes.size());
            for (unsigned more = chance() % 3000; more > 0; --more)
                bytes += static_cast<char>(chance());
            Try(folder, bytes, sample.Name + ", round " + std::to_string(round));
        }
}

struct Promise {
    std::string Name, Bytes;
};

std::string Png_Head(std::uint32_t width, std::uint32_t height)
{
    return "\x89PNG\r\n\x1a\n"
           + Chunk("IHDR", High(width, 4) + High(height, 4) + "\x08\x06\0\0\0"s);
}

std::string Jpeg_Resized(std::uint32_t width, std::uint32_t height, const char* sample)
{
    std::string bytes = Sample_Find(sample).Bytes;
    const auto frame = bytes.find(sample == "jpeg progressive"s ? "\xff\xc2" : "\xff\xc0");
    EXPECT_NE(frame, std::string::npos);
    return bytes.replace(frame + 5, 4, High(height, 2) + High(width, 2));
}

// Fourteen bits each, less one.
std::string WebP_Lossless(std::uint32_t width, std::uint32_t height)
{
    const std::string dots = "\x2f" + Low((width - 1) & 0x3fff, 2) + Low(height - 1, 2) + "\0\0"s;
    return "RIFF" + Low(20, 4) + "WEBPVP8L" + Low(8, 4) + dots;
}

std::string Tiff_Bytes(std::uint32_t width, std::uint32_t height)
{
    constexpr std::uint32_t longWord = 4;
    const std::uint32_t entries[][2] = {{256, width}, {257, height}, {258, 8},      {259, 1},
                                        {262, 1},     {273, 8},      {278, height}, {279, 9}};
    std::string folder = Low(std::size(entries), 2);
    for (const auto& entry : entries)
        folder += Low(entry[0], 2) + Low(longWord, 2) + Low(1, 4) + Low(entry[1], 4);
    return "II*\0"s + Low(8, 4) + folder + Low(0, 4) + std::string(64, '\1');
}

std::string Icon_Bytes(std::uint32_t type, int width, int height)
{
    constexpr std::uint32_t imageAt = 22;
    const std::string image = Bmp_Bytes(width, height, 24, 0, "", std::string(64, '\1')).substr(14);
    return Low(0, 2) + Low(type, 2) + Low(1, 2) + "\x20\x20\0\0"s + Low(1, 2) + Low(24, 2)
           + Low(static_cast<std::uint32_t>(image.size()), 4) + Low(imageAt, 4) + image;
}

// A drawing whose frame in front says this width, at so many units an inch.
std::string Wmf_Boxed(std::uint32_t width, std::uint32_t unitsPerInch)
{
    constexpr std::size_t boxAt = 6, sumAt = 20;
    std::string bytes = Wmf_Bytes(true);
    bytes.replace(boxAt, 10, Low(0, 4) + Low(width, 2) + Low(width, 2) + Low(unitsPerInch, 2));
    std::uint32_t sum = 0;
    for (std::size_t at = 0; at < sumAt; at += 2)
        sum ^= static_cast<unsigned char>(bytes[at])
               | static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[at + 1])) << 8;
    return bytes.replace(sumAt, 2, Low(sum, 2));
}

std::string Emf_Boxed(std::uint32_t side)
{
    constexpr std::size_t boxAt = 8;
    const std::string box = Low(0, 8) + Low(side, 4) + Low(side, 4);
    return Emf_Bytes().replace(boxAt, 32, box + box);
}

// Headers that promise what is too much, or nothing at all.
std::vector<Promise> Promises()
{
    const std::string noDots(64, '\1');
    const std::string grey = std::string(1024, '\x33');
    return {
        {"png without width", Png_Head(0, 40) + noDots},
        {"png without height", Png_Head(40, 0) + noDots},
        {"png enormous", Png_Head(0x7fffffff, 0x7fffffff) + noDots},
        {"png above the bound", Png_Head(32'000, 16'001) + noDots},
        {"png below the bound", Png_Head(22'000, 22'000) + noDots},
        {"bmp without width", Bmp_Bytes(0, 8, 24, 0, "", noDots)},
        {"bmp without height", Bmp_Bytes(8, 0, 24, 0, "", noDots)},
        {"bmp of negative width", Bmp_Bytes(-8, 8, 24, 0, "", noDots)},
        {"bmp enormous", Bmp_Bytes(0x7fffffff, 0x7fffffff, 24, 0, "", noDots)},
        {"bmp upside down without end", Bmp_Bytes(8, INT32_MIN, 24, 0, "", noDots)},
        {"bmp below the bound", Bmp_Bytes(22'000, 22'000, 24, 0, "", noDots)},
        {"bmp rle enormous", Bmp_Bytes(30'000, 30'000, 8, 1, grey, "\0\1"s)},
        {"gif below the bound", Gif_Bytes({22'000, 22'000}, {1, 1})},
        {"gif enormous", Gif_Bytes({65'535, 65'535}, {1, 1})},
        {"gif without width", Gif_Bytes({0, 10}, {0, 10})},
        {"jpeg enormous", Jpeg_Resized(65'000, 65'000, "jpeg")},
        {"jpeg below the bound", Jpeg_Resized(22'000, 22'000, "jpeg")},
        {"jpeg progressive enormous", Jpeg_Resized(65'000, 65'000, "jpeg progressive")},
        {"jpeg without height", Jpeg_Resized(60, 0, "jpeg")},
        {"mng below the bound",
         "\x8aMNG\r\n\x1a\n"
             + Chunk("MHDR", High(22'000, 4) + High(22'000, 4) + std::string(20, '\0'))},
        {"ppm enormous", "P6 99999999 99999999 255\n" + noDots},
        {"ppm without width", "P6 0 5 255\n" + noDots},
        {"pbm below the bound", "P4 22000 22000\n" + noDots},
        {"xbm enormous", "#define a_width 99999999\n#define a_height 99999999\n"},
        {"xpm enormous",
         "/* XPM */\nstatic char * a[] = {\n\"99999999 99999999 1 1\",\n\"a c #0\",\n"},
        {"svg enormous", "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"999999\" "
                         "height=\"999999\"/>"},
        {"svgz enormous", Gzip("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"999999\" "
                               "height=\"999999\"/>")},
        {"webp without dots", WebP_Lossless(0, 0)},
        {"webp enormous", WebP_Lossless(16'384, 16'384)},
        {"webp on an enormous screen", "RIFF" + Low(30, 4) + "WEBPVP8X" + Low(10, 4) + Low(0, 4)
                                           + Low(0xffffff, 3) + Low(0xff, 3)},
        {"tiff without width", Tiff_Bytes(0, 40)},
        {"tiff without height", Tiff_Bytes(40, 0)},
        {"tiff enormous", Tiff_Bytes(0xffffffff, 0xffffffff)},
        {"tiff below the bound", Tiff_Bytes(22'000, 22'000)},
        {"tiff whose folder is itself", "II*\0"s + Low(4, 4)},
        {"ico of an enormous bmp", Icon_Bytes(1, 0x7fffffff, 0x7fffffff)},
        {"ico without dots", Icon_Bytes(1, 0, 0)},
        {"cur of an enormous bmp", Icon_Bytes(2, 30'000, 30'000)},
        {"icns of an enormous block", "icns" + High(0xffffffff, 4) + "ic07" + High(0xffffffff, 4)},
        {"icns of empty blocks", "icns" + High(64, 4) + std::string(56, '\0')},
        {"pgm enormous", "P5 65535 65535 255\n" + noDots},
        {"pgm of words", "P2 30000 30000 255\n" + noDots},
        {"tga enormous",
         "\0\0\2\0\0\0\0\0"s + Low(0, 4) + Low(65'535, 2) + Low(65'535, 2) + "\x18\0"s + noDots},
        {"tga without width",
         "\0\0\2\0\0\0\0\0"s + Low(0, 4) + Low(0, 2) + Low(8, 2) + "\x18\0"s + noDots},
        {"wbmp enormous", "\0\0\x8f\xff\x7f\x8f\xff\x7f"s + noDots},
        {"wmf without a box", Wmf_Boxed(0, 0)},
        {"wmf enormous", Wmf_Boxed(0x7fff, 1)},
        {"emf without a box", Emf_Boxed(0)},
        {"emf enormous", Emf_Boxed(0x7fffffff)},
        {"svg without size",
         "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"0\" height=\"0\"/>"},
    };
}

long PeakKilobytes(__rusage_who who)
{
    rusage usage;
    ::getrusage(who, &usage);
    return usage.ru_maxrss;
}

TEST(PictureDamage, Empty_and_enormous_promises_are_none_and_cost_no_memory)
{
    const TempFolder folder("pictures_promises");
    const long before = PeakKilobytes(RUSAGE_SELF), workers = PeakKilobytes(RUSAGE_CHILDREN);
    for (const Promise& promise : Promises()) {
        folder.Write("picture", promise.Bytes);
        EXPECT_FALSE(Load(folder.Path("picture"))) << promise.Name;
        EXPECT_FALSE(Load(folder.Path("picture"), {64, 64})) << promise.Name;
    }
    constexpr long mostKilobytes = 256L * 1024;
    EXPECT_LT(PeakKilobytes(RUSAGE_SELF) - before, mostKilobytes);
    // Of all workers up to now this is the greediest one.
    EXPECT_LE(PeakKilobytes(RUSAGE_CHILDREN), std::max(workers, mostKilobytes));
}

std::string Gzip_Packed(const std::string& bytes)
{
    // Behind the length and the head of another format lies what gzip has too.
    constexpr int front = 6, behind = 4;
    const std::string packed =
        qCompress(QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size())))
            .toStdString();
    return "\x1f\x8b\x08\0\0\0\0\0\0\3"s + packed.substr(front, packed.size() - front - behind)
           + Low(Checksum(bytes), 4) + Low(static_cast<std::uint32_t>(bytes.size()), 4);
}

TEST(PictureDamage, Drawings_that_never_end_are_given_up)
{
    const std::string head =
        "<svg xmlns=\"http://www.w3.org/2000/svg\" "
        "xmlns:xlink=\"http://www.w3.org/1999/xlink\" width=\"9\" height=\"9\">";
    std::string laughs = head + "<defs><g id=\"a0\"><rect width=\"9\" height=\"9\"/></g>";
    for (int i = 1; i < 30; ++i) {
        const std::string use = "<use xlink:href=\"#a" + std::to_string(i - 1) + "\"/>";
        laughs += "<g id=\"a" + std::to_string(i) + "\">";
        for (int copy = 0; copy < 10; ++copy)
            laughs += use;
        laughs += "</g>";
    }
    const Promise rows[] = {
        {"uses of uses", laughs + "</defs><use xlink:href=\"#a29\"/></svg>"},
        {"nested too deep", head +
                                [] {
                                    std::string groups;
                                    for (int i = 0; i < 400'000; ++i)
                                        groups += "<g>";
                                    return groups;
                                }()},
        {"much out of little",
         Gzip_Packed(head + QByteArray(50'000'000, ' ').toStdString() + "</svg>")},
        {"an endless picture inside", head
                                          + "<image width=\"9\" height=\"9\" "
                                            "xlink:href=\"/dev/zero\"/></svg>"},
    };
    const TempFolder folder("pictures_endless_svg");
    for (const Promise& row : rows) {
        folder.Write("picture", row.Bytes);
        const auto begin = std::chrono::steady_clock::now();
        Load(folder.Path("picture"));
        const std::chrono::duration<double> spent = std::chrono::steady_clock::now() - begin;
        EXPECT_LT(spent.count(), 15) << row.Name;
    }
}

} // namespace
} // namespace tavo::pictures
