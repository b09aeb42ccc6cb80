#include "hosts/pictures/picture_device.h"

namespace tavo::pictures {

PictureDevice::PictureDevice(const RegularFile& file, double seconds)
    : file_(file), seconds_(seconds)
{
    // A buffer would read ahead, and so meet the end by itself.
    open(ReadOnly | Unbuffered);
}

void PictureDevice::Restart(double seconds)
{
    seconds_ = seconds;
    emptyRead_ = shortRead_ = false;
}

qint64 PictureDevice::readData(char* bytes, qint64 count)
{
    const double spent = static_cast<double>(std::clock() - begin_) / CLOCKS_PER_SEC;
    outOfTime_ = outOfTime_ || spent > seconds_;
    const std::size_t wanted = static_cast<std::size_t>(count);
    const std::size_t got =
        outOfTime_ ? 0 : file_.Read(static_cast<std::uint64_t>(pos()), bytes, wanted);
    emptyRead_ = emptyRead_ || (got == 0 && wanted > 0);
    shortRead_ = shortRead_ || got < wanted;
    return static_cast<qint64>(got);
}

} // namespace tavo::pictures
