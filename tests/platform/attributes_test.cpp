#include "platform/posix/attributes.h"

#include "support/entry_ground.h"

#include <gtest/gtest.h>

#include <sys/wait.h>

namespace tavo {

namespace {

using OptionalText = std::optional<std::string>;

constexpr const char* textName = "user.DOSATTRIB";
constexpr const char* noTexts = "the file system of temporary files keeps no extended attributes";

std::string Shown(const OptionalText& text)
{
    return text ? "'" + *text + "'" : "nothing";
}

// Mode and text of an entry.
std::string StateOf(const EntryGround& ground, const std::string& name)
{
    char mode[16];
    std::snprintf(mode, sizeof mode, "%03o ", ground.Mode(name));
    return mode + Shown(ground.Text(name, textName));
}

void Prepare(const EntryGround& ground, unsigned mode, const OptionalText& text)
{
    ground.Folder.Write("a", "content");
    if (text)
        ground.SetText("a", textName, *text);
    ground.Folder.SetMode("a", mode);
}

} // namespace

struct SetRow {
    const char* What;
    unsigned Mode;
    OptionalText Text;
    std::uint32_t Wanted;
    unsigned WantedMode;
    OptionalText WantedText;
};

TEST(Attributes, They_are_kept_in_the_mode_and_in_a_text)
{
    using namespace std::string_literals;
    constexpr std::uint32_t R = attrReadOnly, H = attrHidden, S = attrSystem, A = attrArchive;
    const OptionalText none;
    const SetRow rows[] = {
        {"nothing", 0644, none, 0, 0644, none},
        {"Read-Only", 0644, none, R, 0444, none},
        {"Read-Only already", 0555, none, R, 0555, none},
        {"Read-Only for others alone is none", 0466, none, R, 0444, none},
        {"no more Read-Only", 0444, none, 0, 0644, none},
        {"no more Read-Only for the owner alone", 0400, none, 0, 0600, none},
        {"no more Read-Only for a program", 0555, none, 0, 0755, none},
        {"nobody may do anything", 0000, none, 0, 0200, none},
        {"somebody may write", 0466, none, 0, 0466, none},
        {"rare bits of the mode stay", 01644, none, R, 01444, none},
        {"Archive", 0644, none, A, 0644, "0x20"},
        {"Hidden", 0644, none, H, 0644, "0x2"},
        {"System", 0644, none, S, 0644, "0x4"},
        {"all four", 0644, none, R | H | S | A, 0444, "0x26"},
        {"all go", 0444, "0x26", 0, 0644, none},
        {"some go", 0644, "0x26", S, 0644, "0x4"},
        {"Read-Only does not stand in the text", 0644, "0x22", R | A | H, 0444, "0x22"},
        {"bits that are no attributes of ours", 0644, none, 16 | 64 | 128 | 2048, 0644, none},
        {"another program's spelling", 0644, "0x0022", H | A, 0644, "0x0022"},
        {"a server's data stays with its text", 0644, "0x20\0more"s, A, 0644, "0x20\0more"s},
        {"a server's data goes with its text", 0644, "0x20\0more"s, H, 0644, "0x2"},
        {"a text that says nothing", 0644, "0x0", 0, 0644, none},
    };
    for (const SetRow& row : rows) {
        EntryGround ground("attributes");
        if (!ground.KeepsTexts())
            GTEST_SKIP() << noTexts;
        ground.Entries->Mask = 022;
        Prepare(ground, row.Mode, row.Text);
        EXPECT_TRUE(ground.Files.SetFileAttributesA(ground.Folder.Path("a"), row.Wanted))
            << row.What;
        EXPECT_EQ(ground.Mode("a"), row.WantedMode) << row.What;
        ground.Folder.SetMode("a", 0644); // so that the test may read
        EXPECT_EQ(Shown(ground.Text("a", textName)), Shown(row.WantedText)) << row.What;
        EXPECT_EQ(ground.Folder.Read("a"), "content") << row.What;
    }
}

TEST(Attributes, What_was_set_is_read)
{
    EntryGround ground("attributes");
    if (!ground.KeepsTexts())
        GTEST_SKIP() << noTexts;
    ground.Folder.Write("file");
    ground.Folder.MakeFolder("folder");
    for (const std::string name : {"file", "folder"}) {
        const std::uint32_t kind = name == "folder" ? attrDirectory : 0u;
        for (std::uint32_t bits = 0; bits < 64; ++bits) {
            if ((bits & 24) != 0)
                continue;
            const std::string path = ground.Folder.Path(name);
            ASSERT_TRUE(ground.Files.SetFileAttributesA(path, bits)) << name << ' ' << bits;
            EXPECT_EQ(ground.Files.GetFileAttributesA(path), bits | kind) << name;
            EXPECT_EQ(ground.Files.Stat(path)->Attributes, bits | kind) << name;
            FindData found;
            ASSERT_NE(ground.Files.FindFirstFileA(path, found), invalidFind);
            EXPECT_EQ(found.Attributes, bits | kind) << name;
        }
    }
}

TEST(Attributes, A_long_text_of_a_server_is_read)
{
    EntryGround ground("attributes");
    if (!ground.KeepsTexts())
        GTEST_SKIP() << noTexts;
    ground.Folder.Write("a");
    ground.SetText("a", textName, "0x22" + std::string(600, '\0'));
    const std::string path = ground.Folder.Path("a");
    EXPECT_EQ(ground.Files.GetFileAttributesA(path), attrHidden | attrArchive);
    EXPECT_TRUE(ground.Files.SetFileAttributesA(path, attrArchive));
    EXPECT_EQ(Shown(ground.Text("a", textName)), "'0x20'");
}

struct MaskRow {
    const char* What;
    std::uint32_t Mask;
    unsigned Mode, Wanted;
};

TEST(Attributes, Write_bits_come_back_by_the_mask_of_the_user)
{
    const MaskRow rows[] = {
        {"usual", 022, 0444, 0644},   {"group", 002, 0444, 0664},
        {"all", 000, 0444, 0666},     {"none but who may read", 000, 0440, 0660},
        {"private", 077, 0444, 0644}, {"one at the least", 0777, 0444, 0644},
    };
    for (const MaskRow& row : rows) {
        EntryGround ground("attributes");
        ground.Entries->Mask = row.Mask;
        Prepare(ground, row.Mode, std::nullopt);
        EXPECT_TRUE(ground.Files.SetFileAttributesA(ground.Folder.Path("a"), 0)) << row.What;
        EXPECT_EQ(ground.Mode("a"), row.Wanted) << row.What;
    }
}

TEST(Attributes, The_mask_of_the_user_is_the_process_s)
{
    const ::mode_t old = ::umask(027);
    EXPECT_EQ(SystemEntryDisk()->UserMask(), 027u);
    ::umask(old);
}

TEST(Attributes, A_link_has_none_and_leaves_its_target_alone)
{
    EntryGround ground("attributes");
    ground.Folder.Write("a", "content");
    ground.Folder.MakeFolder("folder");
    ground.Folder.MakeLink("link", "a");
    ground.Folder.MakeLink("to folder", "folder");
    ground.Folder.MakeLink("to nowhere", "missing");
    const std::string before = StateOf(ground, "a");
    for (const std::string name : {"link", "to folder", "to nowhere"}) {
        const std::uint32_t kind = name == "to folder" ? attrDirectory | attrReparse : attrReparse;
        const std::string path = ground.Folder.Path(name);
        EXPECT_EQ(ground.Files.GetFileAttributesA(path), kind) << name;
        EXPECT_FALSE(ground.Files.SetFileAttributesA(path, attrReadOnly | attrHidden)) << name;
        EXPECT_EQ(ground.Files.LastErrorText(), "Operation not supported") << name;
        EXPECT_EQ(ground.Files.LastError(), 2095) << name;
    }
    EXPECT_EQ(StateOf(ground, "a"), before);
}

struct ErrorRow {
    const char *What, *Name;
    int Code;
    const char* Text;
};

TEST(Attributes, What_cannot_be_found_says_why)
{
    EntryGround ground("attributes");
    ground.Folder.Write("a");
    ground.Folder.MakeFolder("folder");
    const ErrorRow rows[] = {
        {"missing", "missing", diskMissing, "No such file or directory"},
        {"missing folder", "missing/a", diskMissingFolder, "No such file or directory"},
        {"file on the way", "a/b", diskMissingFolder, "Not a directory"},
        {"slash behind a file", "a/", diskMissingFolder, "No such file or directory"},
        {"slash behind a folder", "folder/", diskMissing, "No such file or directory"},
    };
    for (const ErrorRow& row : rows) {
        const std::string path = ground.Folder.Path(row.Name);
        EXPECT_EQ(ground.Files.GetFileAttributesA(path), std::nullopt) << row.What;
        EXPECT_EQ(ground.Files.LastError(), row.Code) << row.What;
        EXPECT_FALSE(ground.Files.SetFileAttributesA(path, 1)) << row.What;
        EXPECT_EQ(ground.Files.LastError(), row.Code) << row.What;
        EXPECT_EQ(ground.Files.LastErrorText(), row.Text) << row.What;
    }
    EXPECT_TRUE(ground.Files.GetFileAttributesA("/"));
    EXPECT_EQ(ground.Files.LastErrorText(), "");
    EXPECT_FALSE(ground.Files.GetFileAttributesA("relative"));
    EXPECT_FALSE(ground.Files.GetFileAttributesA(std::string("/a\0b", 4)));
    EXPECT_EQ(ground.Files.LastError(), diskBadName);
}

TEST(Attributes, The_words_of_the_system_are_English)
{
    const std::pair<int, const char*> rows[] = {
        {EACCES, "Permission denied"},        {EPERM, "Operation not permitted"},
        {EROFS, "Read-only file system"},     {EBUSY, "Device or resource busy"},
        {ENOSPC, "No space left on device"},  {EIO, "Input/output error"},
        {ENOTSUP, "Operation not supported"}, {EEXIST, "File exists"},
    };
    for (const auto& [error, text] : rows) {
        EntryGround ground("attributes");
        ground.Folder.Write("a");
        ground.Entries->Faults.FailAll = "Look";
        ground.Entries->Faults.Error = error;
        EXPECT_FALSE(ground.Files.SetFileAttributesA(ground.Folder.Path("a"), 1));
        EXPECT_EQ(ground.Files.LastErrorText(), text);
    }
    EntryGround ground("attributes");
    ground.Folder.Write("a");
    ground.Folder.Write("b");
    const FileOperation op = {foRename, ground.Folder.Path("a"), ground.Folder.Path("b"), fofQuiet};
    EXPECT_EQ(ground.Files.SHFileOperationA(op), diskExists);
    EXPECT_EQ(ground.Files.LastErrorText(), "File exists");
}

TEST(Attributes, A_disk_that_cannot_keep_one_changes_none)
{
    for (const char* call : {"SetText", "SetMode"}) {
        EntryGround ground("attributes");
        if (!ground.KeepsTexts())
            GTEST_SKIP() << noTexts;
        Prepare(ground, 0644, std::nullopt);
        ground.Entries->Faults.FailAll = call;
        ground.Entries->Faults.Error = ENOTSUP;
        const std::string path = ground.Folder.Path("a");
        EXPECT_FALSE(ground.Files.SetFileAttributesA(path, attrReadOnly | attrHidden)) << call;
        EXPECT_EQ(ground.Files.LastErrorText(), "Operation not supported") << call;
        EXPECT_EQ(StateOf(ground, "a"), "644 nothing") << call;
    }
}

TEST(Attributes, A_disk_without_texts_keeps_Read_Only_alone)
{
    EntryGround ground("attributes");
    Prepare(ground, 0644, std::nullopt);
    const std::string path = ground.Folder.Path("a");
    ground.Entries->Faults.FailAll = "GetText";
    ground.Entries->Faults.Error = ENOTSUP;
    EXPECT_TRUE(ground.Files.SetFileAttributesA(path, attrReadOnly));
    EXPECT_EQ(ground.Mode("a"), 0444u);
}

TEST(Attributes, A_disk_that_loses_modes_is_found_out)
{
    EntryGround ground("attributes");
    if (!ground.KeepsTexts())
        GTEST_SKIP() << noTexts;
    Prepare(ground, 0644, "0x2");
    ground.Entries->LosesModes = true;
    EXPECT_FALSE(ground.Files.SetFileAttributesA(ground.Folder.Path("a"), attrReadOnly));
    EXPECT_EQ(ground.Files.LastErrorText(), "Operation not supported");
    EXPECT_EQ(StateOf(ground, "a"), "644 '0x2'");
}

TEST(Attributes, FAT_keeps_its_own)
{
    EntryGround ground("attributes");
    Prepare(ground, 0644, std::nullopt);
    const std::string path = ground.Folder.Path("a");
    ground.Entries->Fat = attrArchive | 8;
    EXPECT_TRUE(ground.Files.SetFileAttributesA(path, attrReadOnly | attrSystem));
    EXPECT_EQ(ground.Entries->Fat, attrReadOnly | attrSystem | 8);
    EXPECT_EQ(StateOf(ground, "a"), "644 nothing");
    const std::size_t calls = ground.Entries->Faults.Calls.size();
    EXPECT_TRUE(ground.Files.SetFileAttributesA(path, attrReadOnly | attrSystem));
    EXPECT_EQ(ground.Entries->Faults.Calls.size(), calls + 4) << "what is right is not set";

    // A file system that keeps no texts, whatever stands behind it.
    std::uint32_t attributes = attrReadOnly;
    ground.Entries->Fat = attrHidden | attrArchive | 8 | 16;
    EXPECT_EQ(AddStoredAttributes(*ground.Entries, "/proc/self/status", attributes), 0);
    EXPECT_EQ(attributes, attrHidden | attrArchive);
    ground.Entries->Fat.reset();
    EXPECT_EQ(AddStoredAttributes(*ground.Entries, "/proc/self/status", attributes), 0);
    EXPECT_EQ(attributes, attrHidden | attrArchive);
}

TEST(Attributes, The_owner_of_a_file_that_nobody_may_write_sets_them)
{
    EntryGround ground("attributes");
    if (!ground.KeepsTexts())
        GTEST_SKIP() << noTexts;
    ground.Folder.MakeFolder("open");
    ground.Folder.SetMode("open", 0777);
    const int failed = AsPlainUser([&] {
        int step = 0;
        for (const unsigned mode : {0444u, 0000u, 0200u, 0400u}) {
            const std::string name = "open/" + std::to_string(mode);
            ground.Folder.Write(name, "content");
            ground.Folder.SetMode(name, mode);
            const std::string path = ground.Folder.Path(name);
            const std::uint32_t readOnly = mode == 0200 ? 0u : 1u;
            ++step;
            if (!ground.Files.SetFileAttributesA(path, attrHidden | readOnly)
                || ground.Mode(name) != mode)
                return step;
        }
        return 0;
    });
    EXPECT_EQ(failed, 0) << "the number of the mode that failed";
    for (const unsigned mode : {0444u, 0000u, 0200u, 0400u}) {
        const std::string name = "open/" + std::to_string(mode);
        ground.Folder.SetMode(name, 0644); // so that the test may read
        EXPECT_EQ(Shown(ground.Text(name, textName)), "'0x2'") << mode;
    }
}

TEST(Attributes, A_stranger_changes_nothing)
{
    EntryGround ground("attributes");
    if (!ground.KeepsTexts())
        GTEST_SKIP() << noTexts;
    Prepare(ground, 0666, "0x2");
    if (::geteuid() != 0)
        GTEST_SKIP() << "the files of another user take root";
    // Whoever may write the file may store texts, but not change the mode.
    const int code = AsPlainUser([&] {
        const std::string path = ground.Folder.Path("a");
        return ground.Files.SetFileAttributesA(path, attrReadOnly | attrArchive)
                   ? 0
                   : ground.Files.LastError();
    });
    EXPECT_EQ(code, diskDenied);
    EXPECT_EQ(StateOf(ground, "a"), "666 '0x2'");
}

TEST(Attributes, They_move_no_stamp)
{
    EntryGround ground("attributes");
    ground.Folder.Write("a");
    const std::string path = ground.Folder.Path("a");
    const FileTime moment{125'911'584'000'000'000};
    const FileHandle file = ground.Files.OpenFile(path, OpenMode::Times);
    ASSERT_TRUE(ground.Files.SetFileTime(file, {}, moment, moment));
    ground.Files.CloseHandle(file);
    ASSERT_TRUE(ground.Files.SetFileAttributesA(path, attrReadOnly));
    EXPECT_EQ(ground.Files.Stat(path)->Written, moment);
    EXPECT_EQ(ground.Files.Stat(path)->Accessed, moment);
}

// -- Faults

struct ChangeRow {
    const char* What;
    unsigned Mode;
    OptionalText Text;
    std::uint32_t Wanted;
    const char* Result;
};

const ChangeRow changes[] = {
    {"both come", 0644, std::nullopt, attrReadOnly | attrHidden, "444 '0x2'"},
    {"both go", 0444, "0x26", 0, "644 nothing"},
    {"one for another", 0444, "0x20\1more", attrSystem, "644 '0x4'"},
    {"the text alone", 0444, "0x20", attrReadOnly | attrHidden, "444 '0x2'"},
    {"the mode alone", 0644, "0x20", attrReadOnly | attrArchive, "444 '0x20'"},
};

TEST(Attributes, A_call_that_fails_leaves_all_as_it_was)
{
    for (const ChangeRow& row : changes) {
        for (const int error : diskFaults) {
            for (std::size_t failing = 1;; ++failing) {
                EntryGround ground("attributes");
                if (!ground.KeepsTexts())
                    GTEST_SKIP() << noTexts;
                ground.Entries->Mask = 022;
                Prepare(ground, row.Mode, row.Text);
                const std::string before = StateOf(ground, "a");
                ground.Entries->Faults.FailAt = failing;
                ground.Entries->Faults.Error = error;
                const bool done =
                    ground.Files.SetFileAttributesA(ground.Folder.Path("a"), row.Wanted);
                const auto& calls = ground.Entries->Faults.Calls;
                EXPECT_EQ(StateOf(ground, "a"), done ? row.Result : before)
                    << row.What << ", " << error << " at call " << failing;
                EXPECT_EQ(ground.Folder.Read("a"), "content");
                if (failing > calls.size()) {
                    EXPECT_TRUE(done) << row.What;
                    EXPECT_GE(calls.size(), 4u) << row.What;
                    break;
                }
            }
        }
    }
}

TEST(Attributes, A_process_that_ends_leaves_old_or_new_ones)
{
    for (const ChangeRow& row : changes) {
        for (std::size_t call = 1; call < 8; ++call) {
            for (const bool behind : {false, true}) {
                EntryGround ground("attributes");
                if (!ground.KeepsTexts())
                    GTEST_SKIP() << noTexts;
                ground.Entries->Mask = 022;
                Prepare(ground, row.Mode, row.Text);
                const auto oldText = Shown(ground.Text("a", textName));
                const pid_t child = ::fork();
                ASSERT_GE(child, 0);
                if (child == 0) {
                    auto& faults = ground.Entries->Faults;
                    (behind ? faults.KillBehind : faults.KillBefore) = call;
                    ground.Files.SetFileAttributesA(ground.Folder.Path("a"), row.Wanted);
                    ::_exit(0);
                }
                int status = 0;
                ASSERT_EQ(::waitpid(child, &status, 0), child);
                const auto text = Shown(ground.Text("a", textName));
                const std::string wanted(row.Result);
                EXPECT_TRUE(text == oldText || text == wanted.substr(4)) << row.What << ' ' << call;
                // Or in the middle of what takes the owner's rights.
                EXPECT_TRUE((ground.Mode("a") & ~0600u) == (row.Mode & ~0600u)
                            || ground.Mode("a") == std::stoul(wanted, nullptr, 8))
                    << row.What << ' ' << call;
                EXPECT_EQ(ground.Folder.Read("a"), "content");
                EXPECT_TRUE(!WIFEXITED(status) || StateOf(ground, "a") == wanted)
                    << row.What << ' ' << call;
            }
        }
    }
}

} // namespace tavo
