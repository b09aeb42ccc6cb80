#pragma once

#include "fileactions/time_text.h"
#include "platform/files.h"

#include <string>

namespace tavo {

// Local time, with fields out of range repaired; what cannot be told becomes
// 02/20/1967 at midnight.
SystemTime FileTime_To_Local(Files& files, FileTime time);
// 0, which leaves a stamp alone, for what is no time.
FileTime Local_To_FileTime(Files& files, const SystemTime& time);

// The stamps of a file and their texts.
struct FileStamps {
    FileTime Created, Modified, Accessed;
    FileTimes Texts;
};

// The moments that these texts tell, 0 for what is no time.
FileStamps Stamps_Of(Files& files, const FileTimes& texts);

// False when the file cannot be read; all is empty then.
bool File_Stamps_Get(Files& files, const std::string& path, FileStamps& stamps);
// The texts alone, empty when the file cannot be read.
FileTimes File_Times_Get(Files& files, const std::string& path);

// The texts, each with a blank behind it where the moment lies in the second of
// two hours of one name: an undo goes back to the very one.
FileTimes Times_Marked(Files& files, const FileStamps& stamps);

// Sets all three times. One whose text is the one that the file has keeps its
// second, which a text cannot tell in the hour that comes twice; its fraction
// goes. A text that is no time leaves its stamp alone. False when the file
// cannot be opened or the times not be set; attributes come back in any case.
bool File_Times_Set(Files& files, const std::string& path, const FileTimes& times);
// The same with the stamps that the file was just read to have.
bool File_Times_Set(Files& files, const std::string& path, const FileStamps& wanted,
                    const FileStamps& present);

} // namespace tavo
