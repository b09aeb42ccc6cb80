#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <string>
#include <string_view>
#include <vector>

namespace tavo {

// Texts of the program are UTF-8, with bytes that are none kept as they are;
// those cross Qt's strings as U+DC80 to U+DCFF. Any bytes come back unchanged,
// and so does any string without other lone surrogates (each of those becomes
// U+FFFD).
QString ToQt(std::string_view text);
std::string FromQt(const QString& text);

// For showing alone: control characters, which names may hold, as their signs.
QString ToQtLine(std::string_view text);

// Positions: the program counts characters, Qt units of 16 bits.
int Units_OfChars(const QString& text, int chars);
int Chars_OfUnits(const QString& text, int units);
inline int Chars_In(const QString& text)
{
    return Chars_OfUnits(text, static_cast<int>(text.size()));
}

// A list of files as drags carry it: addresses with a line end each.
QByteArray UriList_Of(const std::vector<std::string>& paths);
// The paths of this machine in such a list; other addresses are left out.
std::vector<std::string> Paths_InUriList(const QByteArray& list);

// Captions: the program marks letters by `&` as Qt does.
QString Plain_Caption(const std::string& caption);

} // namespace tavo
