#include "hosts/qt/qt_text.h"

#include "platform/posix/start_info.h"
#include "toolkit/caption.h"
#include "toolkit/utf8.h"

#include <algorithm>

namespace tavo {

namespace {

constexpr char16_t strayUnit = 0xDC00; // plus the byte
constexpr char32_t unknownChar = 0xFFFD;

bool IsStrayUnit(char16_t unit)
{
    return unit >= strayUnit + 0x80 && unit <= strayUnit + 0xFF;
}

void AppendUnits(QString& out, Character character)
{
    if (character.IsStray())
        out += QChar(static_cast<char16_t>(strayUnit + character.Byte()));
    else
        out += QChar::fromUcs4(character.Code);
}

bool IsPairAt(const QString& text, qsizetype at)
{
    return text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
}

char32_t CharOfLoneUnit(QChar unit)
{
    if (IsStrayUnit(unit.unicode()))
        return Character::StrayBase + (unit.unicode() - strayUnit);
    return unit.isSurrogate() ? unknownChar : unit.unicode();
}

} // namespace

QString ToQt(std::string_view text)
{
    if (IsAscii(text))
        return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
    QString out;
    out.reserve(static_cast<qsizetype>(text.size()));
    for (std::size_t at = 0; at < text.size();)
        AppendUnits(out, NextChar(text, at));
    return out;
}

std::string FromQt(const QString& text)
{
    std::string out;
    out.reserve(static_cast<std::size_t>(text.size()));
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (!IsPairAt(text, at)) {
            AppendChar(out, CharOfLoneUnit(text[at]));
            continue;
        }
        AppendChar(out, QChar::surrogateToUcs4(text[at], text[at + 1]));
        ++at;
    }
    return out;
}

QString ToQtLine(std::string_view text)
{
    constexpr char16_t firstSign = 0x2400, deleteSign = 0x2421;
    QString line = ToQt(text);
    for (QChar& unit : line) {
        if (unit.unicode() < ' ')
            unit = QChar(static_cast<char16_t>(firstSign + unit.unicode()));
        else if (unit.unicode() == 0x7F)
            unit = QChar(deleteSign);
    }
    return line;
}

int Units_OfChars(const QString& text, int chars)
{
    qsizetype at = 0;
    for (int left = chars; left > 0 && at < text.size(); --left)
        at += IsPairAt(text, at) ? 2 : 1;
    return static_cast<int>(at);
}

int Chars_OfUnits(const QString& text, int units)
{
    const qsizetype end = std::min<qsizetype>(units, text.size());
    int chars = 0;
    for (qsizetype at = 0; at < end; ++chars)
        at += IsPairAt(text, at) ? 2 : 1;
    return chars;
}

QByteArray UriList_Of(const std::vector<std::string>& paths)
{
    QByteArray list;
    for (const std::string& path : paths)
        list += QByteArray::fromStdString(Path_ToFileUrl(path)) + "\r\n";
    return list;
}

std::vector<std::string> Paths_InUriList(const QByteArray& list)
{
    std::vector<std::string> paths;
    for (const QByteArray& line : list.split('\n')) {
        std::string path = Path_FromFileUrl(line.trimmed().toStdString());
        if (!path.empty())
            paths.push_back(std::move(path));
    }
    return paths;
}

QString Plain_Caption(const std::string& caption)
{
    return ToQt(Caption_Plain(caption));
}

} // namespace tavo
