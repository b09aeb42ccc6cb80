#pragma once

#include <string>

namespace tavo {

class Program;

// The tag's fields by the indexes of chkMP3 and txtMP3; the genre's box is
// cboMP3Genre. Not the order of the file: there the year comes first.
enum MP3Field {
    tagTitle = 1,
    tagArtist,
    tagAlbum,
    tagComment,
    tagYear,
    tagTrack,
    tagGenre,
};

// Fills the panel from the file's tag and says in status panel 2 whether there
// is one; an empty path is a file without. No field is ticked afterwards.
void MP3_Tag_Show(Program& p, const std::string& path);

void MP3_Panel_Wire(Program& p);

} // namespace tavo
