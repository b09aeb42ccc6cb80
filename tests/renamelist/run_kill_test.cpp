// The program is killed at any of its calls to a real disk: what was done by
// then stands, and every file is there, whole.

#include "core/screens.h"
#include "renamelist/act_run.h"
#include "support/run_scenes.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <functional>
#include <memory>

namespace tavo {
namespace {

constexpr int killedCode = 77;

// A real disk that ends the process in front of a call, counted from Arm on. In
// front of one that only looks is behind the one before, which changed
// something.
class FatalDisk : public PosixFiles {
public:
    void Arm(int at) { left_ = at; }

    FindHandle FindFirstFileA(const std::string& pattern, FindData& found) override
    {
        Count();
        return PosixFiles::FindFirstFileA(pattern, found);
    }
    bool Exists(const std::string& path) override
    {
        Count();
        return PosixFiles::Exists(path);
    }
    FileHandle OpenFile(const std::string& path, OpenMode mode) override
    {
        Count();
        return PosixFiles::OpenFile(path, mode);
    }
    int SHFileOperationA(const FileOperation& op) override
    {
        Count();
        return PosixFiles::SHFileOperationA(op);
    }
    bool SetFileAttributesA(const std::string& path, std::uint32_t attributes) override
    {
        Count();
        return PosixFiles::SetFileAttributesA(path, attributes);
    }
    bool FileTimeToLocalSystemTime(FileTime time, SystemTime& out) override
    {
        Count();
        return PosixFiles::FileTimeToLocalSystemTime(time, out);
    }
    bool SetFileTime(FileHandle file, FileTime created, FileTime accessed,
                     FileTime written) override
    {
        Count();
        return PosixFiles::SetFileTime(file, created, accessed, written);
    }
    bool WriteBytes(FileHandle file, std::uint64_t offset, std::string_view bytes) override
    {
        Count();
        return PosixFiles::WriteBytes(file, offset, bytes);
    }

private:
    void Count()
    {
        if (left_ > 0 && --left_ == 0)
            ::_exit(killedCode);
    }

    int left_ = 0;
};

// Acts in a process of its own; true when that was killed on the way.
bool KilledIn(RunGround& ground, const std::function<void()>& act)
{
    const pid_t child = ::fork();
    if (child == 0) {
        act();
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status)) << ground.ListText();
    return WIFEXITED(status) && WEXITSTATUS(status) == killedCode;
}

// The list that was in the killed process is gone with it, so only the files
// are looked at.
void Kill_Everywhere(const RunScene& scene, bool inUndo)
{
    int kills = 0;
    for (int at = 1;; ++at) {
        auto disk = std::make_unique<FatalDisk>();
        FatalDisk& fatal = *disk;
        RunGround ground(Ground::RealDisk, std::move(disk));
        Scene_SetUp(scene, ground);
        SceneJudge judge(scene, ground);
        if (inUndo) {
            ground.Act(scene.Action);
            judge.LearnNames(ground.State());
        }
        const bool killed = KilledIn(ground, [&] {
            fatal.Arm(at);
            ground.Act(inUndo ? actUndo : scene.Action);
        });
        if (!inUndo)
            judge.LearnNames(ground.State());
        EXPECT_EQ(judge.FilesComplaint(ground), "") << scene.Name << ", call " << at;
        if (!killed)
            break;
        ++kills;
    }
    EXPECT_GE(kills, 3) << scene.Name;
}

TEST(Kill, A_run_killed_at_any_call_leaves_every_file_whole)
{
    for (const RunScene& scene : runScenes)
        if (scene.Action != actRecycle)
            Kill_Everywhere(scene, false);
}

TEST(Kill, An_undo_killed_at_any_call_leaves_every_file_whole)
{
    for (const RunScene& scene : runScenes)
        if (scene.IsUndone())
            Kill_Everywhere(scene, true);
}

} // namespace
} // namespace tavo
