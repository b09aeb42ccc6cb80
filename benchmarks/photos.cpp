#include "photos.h"

#include "measure.h"

#include <QBuffer>
#include <QImage>
#include <QImageWriter>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <fstream>

namespace tavo::bench {

namespace {

constexpr int quality = 92, noiseLevels = 24;

// Numbers as good as by chance, the same every time.
class Chance {
public:
    explicit Chance(std::uint32_t seed) : state_(seed * 2 + 1) {}
    std::uint32_t Next()
    {
        state_ = state_ * 1664525u + 1013904223u;
        return state_ >> 16;
    }

private:
    std::uint32_t state_;
};

int Level(double light, int noise)
{
    return std::clamp(static_cast<int>(light) + noise, 0, 255);
}

// A hilly ground with a fine grid on it.
QImage Photo_Draw(QSize size, std::uint32_t seed)
{
    QImage image(size, QImage::Format_RGB32);
    Require(!image.isNull(), "no memory for a photo");
    Chance chance(seed);
    const double step = 0.002 * (1 + seed % 5);
    std::vector<double> across(static_cast<std::size_t>(size.width()));
    for (std::size_t x = 0; x < across.size(); ++x)
        across[x] = std::sin(static_cast<double>(x) * step);
    for (int y = 0; y < size.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
        const double down = std::cos(y * step * 1.7);
        for (int x = 0; x < size.width(); ++x) {
            const double hill = 128 + 90 * across[static_cast<std::size_t>(x)] * down;
            const double grid = x / 40 % 2 == y / 40 % 2 ? 18 : -18;
            const int noise = static_cast<int>(chance.Next() % noiseLevels) - noiseLevels / 2;
            line[x] = qRgb(Level(hill + grid, noise), Level(255 - hill, noise),
                           Level(hill * 0.6 + y % 64, noise));
        }
    }
    return image;
}

QByteArray Photo_Bytes(QSize size, std::uint32_t seed)
{
    QBuffer buffer;
    QImageWriter writer(&buffer, "jpeg");
    writer.setQuality(quality);
    Require(writer.write(Photo_Draw(size, seed)), "a photo could not be made");
    return buffer.data();
}

} // namespace

const std::vector<QSize>& Photo_Sizes()
{
    static const std::vector<QSize> sizes{
        {4000, 3000}, {4800, 3200}, {5184, 3456}, {5472, 3648}, largestPhoto};
    return sizes;
}

std::vector<std::string> Photos_Make(const std::string& folder, const std::vector<QSize>& sizes,
                                     int count)
{
    std::vector<QByteArray> photos;
    for (std::size_t kind = 0; kind < sizes.size(); ++kind)
        photos.push_back(Photo_Bytes(sizes[kind], static_cast<std::uint32_t>(kind + 1)));
    std::vector<std::string> paths;
    for (int number = 0; number < count; ++number) {
        char name[32];
        std::snprintf(name, sizeof name, "photo_%04d.jpg", number);
        paths.push_back(folder + name);
        const QByteArray& bytes = photos[static_cast<std::size_t>(number) % photos.size()];
        std::ofstream file(paths.back(), std::ios::binary);
        file.write(bytes.constData(), bytes.size()).flush();
        Require(file.good(), "cannot write " + paths.back());
    }
    return paths;
}

} // namespace tavo::bench
