#include "samples.h"

#include "drawing_samples.h"

#include <QBuffer>
#include <QImageWriter>

#include <gtest/gtest.h>

namespace tavo::pictures {

namespace {

using namespace std::string_literals;

constexpr QSize usual(60, 40);

std::string Progressive()
{
    QBuffer buffer;
    QImageWriter writer(&buffer, "jpeg");
    writer.setProgressiveScanWrite(true);
    EXPECT_TRUE(writer.write(Image_Colours(usual)));
    return buffer.data().toStdString();
}

std::string Tiff_Packed()
{
    QBuffer buffer;
    QImageWriter writer(&buffer, "tiff");
    writer.setCompression(1);
    EXPECT_TRUE(writer.write(Image_Colours(usual)));
    return buffer.data().toStdString();
}

QImage Image_Clear()
{
    QImage image = Image_Colours(usual).convertToFormat(QImage::Format_ARGB32);
    for (int x = 0; x < image.width(); ++x)
        image.setPixel(x, x % image.height(), qRgba(200, 100, 50, x * 4));
    return image;
}

// Grey from black to white.
std::string Palette(int colours)
{
    std::string palette;
    for (int i = 0; i < colours; ++i)
        palette += std::string(3, static_cast<char>(i * 255 / (colours - 1))) + '\0';
    return palette;
}

// 8 by 2: a run of six, two by themselves, a jump, the end.
std::string Bmp_Rle8()
{
    const std::string dots =
        "\6\x80\2\1\0\0"s + "\0\3\1\2\3\0"s + "\0\2\2\0"s + "\3\xff"s + "\0\1"s;
    return Bmp_Bytes(8, 2, 8, 1, Palette(256), dots);
}

std::string Bmp_Rle4()
{
    return Bmp_Bytes(8, 2, 4, 2, Palette(16),
                     "\10\x1f\0\0"s + "\0\4\x12\x34"s + "\4\x50"s + "\0\1"s);
}

std::string Tga()
{
    std::string bytes = "\0\0\2\0\0\0\0\0"s + Low(0, 4) + Low(60, 2) + Low(40, 2) + "\x18\0"s;
    for (int i = 0; i < 60 * 40; ++i)
        bytes += Low(static_cast<std::uint32_t>(i) * 5000, 3);
    return bytes + Low(0, 8) + "TRUEVISION-XFILE.\0"s;
}

// A picture in a picture: the chunks of a PNG between a head and an end.
std::string Mng()
{
    const std::string png = Bytes_Of(Image_Colours(usual), "png").substr(8);
    const std::string head =
        High(60, 4) + High(40, 4) + High(1, 4) + High(1, 4) + High(1, 4) + High(0, 4) + High(1, 4);
    return "\x8aMNG\r\n\x1a\n" + Chunk("MHDR", head) + png + Chunk("MEND", {});
}

std::vector<Sample> Samples_Make()
{
    using enum PictureKind;
    const QImage image = Image_Colours(usual);
    const QImage icon = Image_Colours({32, 32});
    return {
        {"jpeg", Jpeg, usual, Bytes_Of(image, "jpeg", 90)},
        {"jpeg progressive", Jpeg, usual, Progressive()},
        {"jpeg grey", Jpeg, usual,
         Bytes_Of(image.convertToFormat(QImage::Format_Grayscale8), "jpeg")},
        {"png", Png, usual, Bytes_Of(image, "png")},
        {"png with opacity", Png, usual, Bytes_Of(Image_Clear(), "png")},
        {"png of two colours", Png, usual,
         Bytes_Of(image.convertToFormat(QImage::Format_Mono), "png")},
        {"png of 64 bits", Png, usual,
         Bytes_Of(image.convertToFormat(QImage::Format_RGBA64), "png")},
        {"gif", Gif, usual, Gif_Bytes(usual, usual)},
        {"gif smaller than its screen", Gif, usual, Gif_Bytes(usual, {20, 10})},
        {"bmp", Bmp, usual, Bytes_Of(image, "bmp")},
        {"bmp of 8 bits", Bmp, usual,
         Bytes_Of(image.convertToFormat(QImage::Format_Indexed8), "bmp")},
        {"bmp rle8", Bmp, {8, 2}, Bmp_Rle8()},
        {"bmp rle4", Bmp, {8, 2}, Bmp_Rle4()},
        {"ico", Icon, {32, 32}, Bytes_Of(icon, "ico")},
        {"cur", Cursor, {32, 32}, "\0\0\2"s + Bytes_Of(icon, "ico").substr(3)},
        {"webp", WebP, usual, Bytes_Of(image, "webp", 80)},
        {"webp lossless", WebP, usual, Bytes_Of(Image_Clear(), "webp", 100)},
        {"tiff", Tiff, usual, Bytes_Of(image, "tiff")},
        {"tiff packed", Tiff, usual, Tiff_Packed()},
        {"mng", Mng, usual, pictures::Mng()},
        {"icns", Icns, {32, 32}, Bytes_Of(icon, "icns")},
        {"ppm", Pnm, usual, Bytes_Of(image, "ppm")},
        {"pgm", Pnm, usual, Bytes_Of(image, "pgm")},
        {"pbm", Pnm, usual, Bytes_Of(image, "pbm")},
        {"xpm", Xpm, usual, Bytes_Of(image.convertToFormat(QImage::Format_Indexed8), "xpm")},
        {"xbm", Xbm, usual, Bytes_Of(image.convertToFormat(QImage::Format_Mono), "xbm")},
        {"svg", Svg, usual, Svg_Bytes()},
        {"svg with words", Svg, usual, Svg_BytesWithWords()},
        {"svgz", Svgz, usual, Gzip(Svg_Bytes())},
        {"wmf", Wmf, {80, 60}, Wmf_Bytes(true)},
        {"wmf without a frame", Wmf, {}, Wmf_Bytes(false)},
        {"emf", Emf, {80, 60}, Emf_Bytes()},
        {"tga", Tga, usual, pictures::Tga()},
        {"wbmp", Wbmp, usual, Bytes_Of(image.convertToFormat(QImage::Format_Mono), "wbmp")},
    };
}

} // namespace

const std::vector<Sample>& Samples()
{
    static const std::vector<Sample> samples = Samples_Make();
    return samples;
}

QImage Image_Colours(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    const int width = size.width(), height = size.height();
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            image.setPixel(
                x, y, qRgb(x * 255 / width, y * 255 / height, (x + y) * 255 / (width + height)));
    return image;
}

std::string Bytes_Of(const QImage& image, const char* format, int quality)
{
    QBuffer buffer;
    QImageWriter writer(&buffer, format);
    writer.setQuality(quality);
    EXPECT_TRUE(writer.write(image)) << format << ": " << writer.errorString().toStdString();
    return buffer.data().toStdString();
}

std::string Low(std::uint32_t number, int count)
{
    std::string bytes;
    for (int i = 0; i < count; ++i)
        bytes += static_cast<char>(std::uint64_t{number} >> (8 * i));
    return bytes;
}

std::string High(std::uint32_t number, int count)
{
    const std::string bytes = Low(number, count);
    return {bytes.rbegin(), bytes.rend()};
}

void Bit_Flip(char& byte, unsigned bit)
{
    byte = static_cast<char>(static_cast<unsigned char>(byte) ^ 1u << bit);
}

std::uint32_t Checksum(const std::string& bytes)
{
    std::uint32_t sum = ~0u;
    for (const char byte : bytes) {
        sum ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = sum >> 1 ^ ((sum & 1) != 0 ? 0xedb88320u : 0);
    }
    return ~sum;
}

std::string Gzip(const std::string& bytes)
{
    const auto size = static_cast<std::uint32_t>(bytes.size());
    return "\x1f\x8b\x08\0\0\0\0\0\0\3"s + "\1" + Low(size, 2) + Low(~size, 2) + bytes
           + Low(Checksum(bytes), 4) + Low(size, 4);
}

std::string Chunk(const std::string& name, const std::string& data)
{
    return High(static_cast<std::uint32_t>(data.size()), 4) + name + data
           + High(Checksum(name + data), 4);
}

std::string Bmp_Bytes(int width, int height, int depth, int compression, const std::string& palette,
                      const std::string& dots)
{
    const auto offset = static_cast<std::uint32_t>(54 + palette.size());
    const auto whole = static_cast<std::uint32_t>(offset + dots.size());
    return "BM" + Low(whole, 4) + Low(0, 4) + Low(offset, 4) + Low(40, 4)
           + Low(static_cast<std::uint32_t>(width), 4) + Low(static_cast<std::uint32_t>(height), 4)
           + Low(1, 2) + Low(static_cast<std::uint32_t>(depth), 2)
           + Low(static_cast<std::uint32_t>(compression), 4)
           + Low(static_cast<std::uint32_t>(dots.size()), 4) + Low(0, 8)
           + Low(static_cast<std::uint32_t>(palette.size() / 4), 4) + Low(0, 4) + palette + dots;
}

std::string Gif_Bytes(QSize screen, QSize size)
{
    const auto both = [](QSize s) {
        return Low(static_cast<std::uint32_t>(s.width()), 2)
               + Low(static_cast<std::uint32_t>(s.height()), 2);
    };
    // Two bits a dot. A table that is cleared before it grows keeps each code
    // three bits wide.
    constexpr unsigned clear = 4, end = 5, codeBits = 3;
    std::string data;
    unsigned held = 0, heldBits = 0;
    const auto put = [&](unsigned code) {
        held |= code << heldBits;
        for (heldBits += codeBits; heldBits >= 8; heldBits -= 8, held >>= 8)
            data += static_cast<char>(held);
    };
    for (int dot = 0; dot < size.width() * size.height(); ++dot) {
        if (dot % 2 == 0)
            put(clear);
        put(static_cast<unsigned>(dot / 3 % 4));
    }
    put(end);
    data += static_cast<char>(held);
    std::string bytes = "GIF89a" + both(screen) + "\x91\0\0"s + "\0\0\0\xff\0\0\0\xff\0\0\0\xff"s
                        + "," + Low(0, 4) + both(size) + "\0\2"s;
    for (std::size_t at = 0; at < data.size(); at += 255) {
        const std::string part = data.substr(at, 255);
        bytes += static_cast<char>(part.size()) + part;
    }
    return bytes + "\0;"s;
}

std::string Exif_Block(unsigned orientation, bool bigEnd)
{
    const auto number = [bigEnd](std::uint32_t value, int count) {
        return bigEnd ? High(value, count) : Low(value, count);
    };
    return (bigEnd ? "MM" : "II") + number(42, 2) + number(8, 4) + number(1, 2) + number(0x112, 2)
           + number(3, 2) + number(1, 4) + number(orientation, 2) + number(0, 2) + number(0, 4);
}

} // namespace tavo::pictures
