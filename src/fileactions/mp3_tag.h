#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tavo {

// What MP3Tag::Tag says of a file.
inline constexpr std::string_view mp3Present = "TAG", mp3Absent = "No";

// The tag at the end of a music file (ID3v1.1). `Tag` is empty where the file
// could not be read. Texts are UTF-8; the file keeps a byte a character, in
// code page 1252. Genre 255 is none.
struct MP3Tag {
    std::string Tag;
    std::string Title, Artist, Album, Year, Comment;
    std::uint8_t Track = 0, Genre = 0;

    bool IsPresent() const { return Tag == mp3Present; }
};

// Are all seven fields the same, to the letter? The marker does not count.
bool MP3_Tag_Same(const MP3Tag& left, const MP3Tag& right);

// The tag's size in bytes.
inline constexpr std::size_t mp3TagSize = 128;

// The tag in these bytes, the last of a file; "No" where they do not begin
// with the marker, in whatever case. A file may be shorter than a tag: what
// is missing counts as NUL. A field ends at its first NUL, and blanks at its
// end belong to it. The byte behind the comment is the track, also where the
// writer of the file had a comment of 30 characters in mind.
MP3Tag MP3_Tag_Decode(std::string_view bytes);
// The bytes of this tag: texts padded by NULs or cut, "?" for a character
// outside the code page. A comment may fill its 29 bytes, with no NUL between
// it and the track.
std::string MP3_Tag_Encode(const MP3Tag& tag);
// A typed text as a file would give it back, but for its length.
std::string MP3_Text_Fit(std::string_view text);

// The tag as the undo text of a row: "MP3: ", then each field behind the two
// digits of its length, in the order of the record. Of a file that had no tag
// it is "MP3: " alone.
std::string MP3_Undo_Build(const MP3Tag& tag);
// The way back, to a tag that is present. What a record lacks, or has
// damaged, is an empty text or 0.
MP3Tag MP3_Undo_Parse(std::string_view record);
// Takes the next field off the record.
std::string MP3_Undo_Field(std::string& record);

} // namespace tavo
