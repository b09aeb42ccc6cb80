#pragma once

#include "hosts/pictures/pictures.h"

#include <QByteArray>

// Metafiles, by Debian's libraries for them. Both libraries are old, so only
// the worker calls them.
namespace tavo::pictures {

// Windows metafiles, with the placeable header or without; on white paper.
std::optional<Loaded> Wmf_Draw(QByteArray bytes, QSize bound);

// Enhanced metafiles. Needs an application object, for the fonts.
std::optional<Loaded> Emf_Draw(QByteArray bytes, QSize bound);

} // namespace tavo::pictures
