#pragma once

#include "platform/posix/regular_file.h"

#include <QIODevice>

#include <ctime>

namespace tavo::pictures {

// Hands an open file to a decoder, and keeps an eye on it: how it meets the
// end, and how long it takes. A decoder whose time is over finds the file at
// its end, as the one way to make it stop that all of them heed.
class PictureDevice : public QIODevice {
public:
    // The time is the processor's, in seconds from now.
    PictureDevice(const RegularFile& file, double seconds);

    // From here on the decoder reads for good, no longer to find out what it
    // has before it: it gets this much time, counted from the beginning, and
    // what it did at the end of the file is forgotten.
    void Restart(double seconds);

    // Did a read find nothing left, or less than it asked for?
    bool HadEmptyRead() const { return emptyRead_; }
    bool HadShortRead() const { return shortRead_; }
    bool IsOutOfTime() const { return outOfTime_; }

    qint64 size() const override { return static_cast<qint64>(file_.Size()); }

protected:
    qint64 readData(char* bytes, qint64 count) override;
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    const RegularFile& file_;
    std::clock_t begin_ = std::clock();
    double seconds_;
    bool emptyRead_ = false, shortRead_ = false, outOfTime_ = false;
};

} // namespace tavo::pictures
