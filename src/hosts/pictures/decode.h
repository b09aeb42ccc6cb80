#pragma once

#include "hosts/pictures/orientation.h"
#include "hosts/pictures/picture_kind.h"
#include "hosts/pictures/pictures.h"
#include "platform/posix/regular_file.h"

#include <QImageReader>

namespace tavo::pictures {

// Below this a picture needs no look at how much memory there is.
inline constexpr qint64 freeDots = 16'000'000;

qint64 Dots_Of(QSize size);

// Has the picture a dot, not too many, and the memory room for it?
bool Size_IsFit(QSize size);

// Lets Qt's reader read into a picture of at most `bound`. `turn` is to be
// given where the reader itself knows none.
std::optional<Loaded> Reader_Load(QImageReader& reader, QSize bound, bool reduces, Turn turn);

// The kind of an open file; null for none, and for a file larger than its kind
// may be.
const KindRules* Kind_OfFile(const RegularFile& file);

// Decodes in this process, whatever the rules say of another.
std::optional<Loaded> File_Decode(const RegularFile& file, const KindRules& rules, QSize bound);

std::optional<QSize> File_Size(const RegularFile& file, const KindRules& rules);

} // namespace tavo::pictures
