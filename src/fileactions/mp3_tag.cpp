#include "fileactions/mp3_tag.h"

#include "selection/paths.h"
#include "toolkit/code_page.h"
#include "toolkit/numbers.h"
#include "toolkit/text.h"
#include "toolkit/utf8.h"

#include <algorithm>

namespace tavo {

namespace {

constexpr std::string_view undoPrefix = "MP3: ";

struct TextField {
    std::string MP3Tag::*Text;
    std::size_t Offset; // in the tag
    std::int16_t Size;
};

// In the order of the file, which is that of the undo record too.
constexpr TextField textFields[] = {
    {&MP3Tag::Title, 3, 30}, {&MP3Tag::Artist, 33, 30},  {&MP3Tag::Album, 63, 30},
    {&MP3Tag::Year, 93, 4},  {&MP3Tag::Comment, 97, 29},
};
constexpr std::size_t trackOffset = 126, genreOffset = 127;

void Field_Append(std::string& record, std::string_view text)
{
    const int length = Len(text);
    record += static_cast<char>('0' + length / 10 % 10);
    record += static_cast<char>('0' + length % 10);
    record += text;
}

std::uint8_t Byte_Of(std::string_view text)
{
    return static_cast<std::uint8_t>(ParseByte(text).value_or(0));
}

// A text is padded before it is turned into bytes: two of those might read as
// one character. Where each byte is one, nothing has to be turned.
void Field_Encode(std::string& bytes, std::string_view text, std::int16_t size)
{
    if (!IsAscii(text)) {
        bytes += Utf8ToCp1252(Str_PadNul(text, size));
        return;
    }
    const std::size_t end = bytes.size() + static_cast<std::size_t>(size);
    bytes += text.substr(0, static_cast<std::size_t>(size));
    bytes.resize(end);
}

} // namespace

bool MP3_Tag_Same(const MP3Tag& left, const MP3Tag& right)
{
    return left.Track == right.Track && left.Genre == right.Genre
           && std::ranges::all_of(textFields, [&](const TextField& field) {
                  return left.*field.Text == right.*field.Text;
              });
}

MP3Tag MP3_Tag_Decode(std::string_view bytes)
{
    MP3Tag tag;
    tag.Tag = UCase(bytes.substr(0, mp3Present.size()));
    if (!tag.IsPresent()) {
        tag.Tag = mp3Absent;
        return tag;
    }
    std::string whole(bytes.substr(0, mp3TagSize));
    whole.resize(mp3TagSize, '\0');
    for (const TextField& field : textFields) {
        const std::string_view text(whole.data() + field.Offset,
                                    static_cast<std::size_t>(field.Size));
        tag.*field.Text = Cp1252ToUtf8(text.substr(0, text.find('\0')));
    }
    tag.Track = static_cast<std::uint8_t>(whole[trackOffset]);
    tag.Genre = static_cast<std::uint8_t>(whole[genreOffset]);
    return tag;
}

std::string MP3_Tag_Encode(const MP3Tag& tag)
{
    std::string bytes(mp3Present);
    bytes.reserve(mp3TagSize);
    for (const TextField& field : textFields)
        Field_Encode(bytes, tag.*field.Text, field.Size);
    bytes += static_cast<char>(tag.Track);
    bytes += static_cast<char>(tag.Genre);
    return bytes;
}

std::string MP3_Text_Fit(std::string_view text)
{
    return Cp1252ToUtf8(Utf8ToCp1252(text));
}

std::string MP3_Undo_Build(const MP3Tag& tag)
{
    std::string record(undoPrefix);
    if (!tag.IsPresent())
        return record;
    for (const TextField& field : textFields)
        Field_Append(record, tag.*field.Text);
    Field_Append(record, IntToText(tag.Track));
    Field_Append(record, IntToText(tag.Genre));
    return record;
}

MP3Tag MP3_Undo_Parse(std::string_view record)
{
    std::string rest = Mid(record, Len(undoPrefix) + 1);
    MP3Tag tag;
    tag.Tag = mp3Present;
    for (const TextField& field : textFields)
        tag.*field.Text = MP3_Undo_Field(rest);
    tag.Track = Byte_Of(MP3_Undo_Field(rest));
    tag.Genre = Byte_Of(MP3_Undo_Field(rest));
    return tag;
}

std::string MP3_Undo_Field(std::string& record)
{
    constexpr int digits = 2;
    const auto length = static_cast<int>(std::clamp(Val(Left(record, digits)), 0.0, 99.0));
    const std::string value = Mid(record, digits + 1, length);
    record = Mid(record, digits + length + 1);
    return value;
}

} // namespace tavo
