#pragma once

#include "core/screens.h"
#include "fileactions/mp3_panel.h"
#include "fileactions/mp3_run.h"
#include "fileactions/mp3_tag.h"
#include "renamelist/rename_list.h"
#include "support/list_ground.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <optional>
#include <ostream>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tavo {

inline void PrintTo(const MP3Tag& tag, std::ostream* out)
{
    *out << '[' << tag.Tag << '|' << tag.Title << '|' << tag.Artist << '|' << tag.Album << '|'
         << tag.Year << '|' << tag.Comment << '|' << int{tag.Track} << '|' << int{tag.Genre} << ']';
}

// For expectations, and so with the marker.
inline bool operator==(const MP3Tag& left, const MP3Tag& right)
{
    return left.Tag == right.Tag && MP3_Tag_Same(left, right);
}

// A disk in memory whose files open, and refuse to, as a test wants.
class TagDisk : public MemoryDisk {
public:
    using MemoryDisk::MemoryDisk;

    // Paths that do not open for writing, that do not open at all, whose bytes
    // cannot be read, that cannot be written though they open.
    std::set<std::string> ReadOnly, Closed, Broken, Full;
    // What was opened, "R " or "W " before the path.
    std::vector<std::string> Opened;
    int Writes = 0;

    int OpenFiles() const { return static_cast<int>(open_.size()); }

    FileHandle OpenFile(const std::string& path, OpenMode mode) override
    {
        const bool writes = mode == OpenMode::ReadWrite;
        if (!Content(path) || Closed.contains(path) || (writes && ReadOnly.contains(path)))
            return noFile;
        Opened.push_back((writes ? "W " : "R ") + path);
        open_[++last_] = {path, writes};
        return last_;
    }
    void CloseHandle(FileHandle file) override { EXPECT_EQ(open_.erase(file), 1u); }
    std::optional<std::uint64_t> FileLength(FileHandle file) override
    {
        return Content(open_.at(file).Path)->size();
    }
    std::optional<std::string> ReadBytes(FileHandle file, std::uint64_t offset,
                                         std::size_t count) override
    {
        const std::string path = open_.at(file).Path;
        if (Broken.contains(path))
            return std::nullopt;
        return Content(path)->substr(offset, count);
    }
    bool WriteBytes(FileHandle file, std::uint64_t offset, std::string_view bytes) override
    {
        const Open open = open_.at(file);
        EXPECT_TRUE(open.Writes) << open.Path;
        if (Full.contains(open.Path))
            return false;
        std::string content = *Content(open.Path);
        EXPECT_LE(offset, content.size()) << open.Path;
        content.resize(std::max(content.size(), static_cast<std::size_t>(offset) + bytes.size()));
        content.replace(offset, bytes.size(), bytes);
        AddFile(open.Path, content);
        ++Writes;
        return true;
    }

private:
    struct Open {
        std::string Path;
        bool Writes = false;
    };
    std::map<FileHandle, Open> open_;
    FileHandle last_ = noFile;
};

struct TagDiskHolder {
    explicit TagDiskHolder(MemoryDisk::Flavour flavour) : Disk(flavour) {}
    TagDisk Disk;
};

// A program in the tag's mode before files of folder d.
class Mp3Ground : private TagDiskHolder, public ListGround {
public:
    explicit Mp3Ground(MemoryDisk::Flavour flavour)
        : TagDiskHolder(flavour), ListGround(Disk, AppFolder(Disk))
    {
        Mode_Set(P, modeMp3Tag);
    }
    using TagDiskHolder::Disk;

    struct File {
        std::string Name, Content;
    };

    std::string Full(const std::string& name) const
    {
        return (Disk.Rules().Separator == '\\' ? "C:\\d\\" : "/d/") + name;
    }
    // Puts the files on the disk and, sorted by name, into the list.
    void Load(const std::vector<File>& files)
    {
        std::vector<std::string> paths;
        for (const File& file : files) {
            Disk.AddFile(Full(file.Name), file.Content);
            paths.push_back(Full(file.Name));
        }
        Ren_List_FromDrop(P, paths);
    }
    std::string Content(const std::string& name) const
    {
        return Disk.Content(Full(name)).value_or("gone");
    }
    // The tag at the end of a file of at least its size.
    MP3Tag TagOf(const std::string& name) const
    {
        const std::string content = Content(name);
        return MP3_Tag_Decode(
            content.size() < mp3TagSize ? content : content.substr(content.size() - mp3TagSize));
    }

    // A person types into a field, or chooses a genre; both tick it.
    void Type(int field, const std::string& text) { Main.txtMP3[field].PersonText(text); }
    void Tick(int field, bool on = true) { Main.chkMP3[field].Value = on ? 1 : 0; }
    std::string Ticks() const
    {
        std::string ticks;
        for (const auto& box : Main.chkMP3)
            ticks += box->Value == 1 ? static_cast<char>('0' + box->Index()) : '-';
        return ticks;
    }
    // Title, artist ... as the boxes show them.
    std::vector<std::string> Boxes() const
    {
        std::vector<std::string> texts;
        for (const auto& box : Main.txtMP3)
            texts.push_back(box->Text);
        texts.push_back(Main.cboMP3Genre.Text);
        return texts;
    }

    // Runs all rows of the list as the walk alone.
    void Run()
    {
        RunRows rows;
        for (int row = 1; row <= List.Count(); ++row)
            rows.push_back(row);
        for (int k = 1; k <= 3; ++k)
            Main.lblActionInfo[k].Caption = "";
        P.state.ActCancel = P.state.RenFailed = false;
        MP3_Run(P, rows);
        EXPECT_EQ(Disk.OpenFiles(), 0);
    }
    // What the panel shows for updated, errors, identical.
    std::string Counts() const
    {
        return Main.lblActionInfo[1].Caption.Get() + "/" + Main.lblActionInfo[2].Caption.Get() + "/"
               + Main.lblActionInfo[3].Caption.Get();
    }

private:
    static std::string AppFolder(MemoryDisk& disk)
    {
        const std::string folder = disk.Rules().Separator == '\\' ? "C:\\app\\" : "/app/";
        disk.AddFolder(folder);
        return folder;
    }
};

inline const auto mp3Dialects =
    ::testing::Values(MemoryDisk::Flavour::Windows, MemoryDisk::Flavour::Posix);
inline std::string Mp3Dialect_Name(const ::testing::TestParamInfo<MemoryDisk::Flavour>& info)
{
    return info.param == MemoryDisk::Flavour::Windows ? "Windows" : "Linux";
}

} // namespace tavo
