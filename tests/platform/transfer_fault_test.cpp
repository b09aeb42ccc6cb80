// What a move, a copy or a removal leaves behind when any one of its calls
// fails, or when the process is killed at any of them.

#include "support/transfer_ground.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace tavo {
namespace {

using Lines = std::vector<std::string>;

enum class Source { File, Link, Tree };
enum class Target { FullName, BareFolder, Replaced };

struct Case {
    const char* What;
    FileOpFunc Func;
    Source From;
    Target To;
    bool Across = false;
};

constexpr Case cases[] = {
    {"move_file", foMove, Source::File, Target::FullName},
    {"move_tree", foMove, Source::Tree, Target::BareFolder},
    {"move_and_replace", foMove, Source::File, Target::Replaced},
    {"move_file_across", foMove, Source::File, Target::FullName, true},
    {"move_link_across", foMove, Source::Link, Target::FullName, true},
    {"move_tree_across", foMove, Source::Tree, Target::BareFolder, true},
    {"move_and_replace_across", foMove, Source::File, Target::Replaced, true},
    {"copy_file", foCopy, Source::File, Target::FullName},
    {"copy_file_across", foCopy, Source::File, Target::BareFolder, true},
    {"copy_link", foCopy, Source::Link, Target::FullName},
    {"copy_tree", foCopy, Source::Tree, Target::FullName},
    {"copy_and_replace", foCopy, Source::File, Target::Replaced},
    {"copy_and_replace_across", foCopy, Source::File, Target::Replaced, true},
    {"delete_file", foDelete, Source::File, Target::FullName},
    {"delete_link", foDelete, Source::Link, Target::FullName},
    {"delete_tree", foDelete, Source::Tree, Target::FullName},
};

constexpr int errors[] = {EIO, ENOSPC, EACCES, EROFS, EXDEV, EINTR, EPERM, ENOENT};

const char* NameOf(Source source)
{
    constexpr const char* names[] = {"file", "link", "tree"};
    return names[static_cast<int>(source)];
}

// One case on a fresh ground, with the state before it.
class Trial {
public:
    explicit Trial(const Case& which) : case_(which)
    {
        const std::string name = NameOf(which.From);
        Fill();
        from_ = ground.Here.Path("from/" + name);
        to_ = To().Path("to/" + (which.To == Target::FullName ? "new" : std::string()));
        if (which.To == Target::Replaced)
            To().Write("to/" + name, "old");
        if (which.Func == foDelete)
            to_.clear();
        SourceBefore = SourceNow(true);
        TargetBefore = TargetNow();
        // Short pieces, so that there are calls in the middle of the content.
        ground.Script.MostBytes = 5;
    }

    int Go() { return ground.Run(case_.Func, from_, to_); }

    // In a process of its own. Was it killed?
    bool GoToDeath()
    {
        const pid_t child = ::fork();
        if (child == 0) {
            Go();
            ::_exit(0);
        }
        int status = 0;
        EXPECT_EQ(::waitpid(child, &status, 0), child);
        return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
    }

    Lines SourceNow(bool withProperties, bool hidden = true) const
    {
        return Described(ground.Here.Path("from"), withProperties, hidden);
    }
    Lines TargetNow(bool hidden = true) const { return Described(To().Path("to"), false, hidden); }

    TransferGround ground{TransferGround::Disks::MemoryAlone};
    Lines SourceBefore, TargetBefore;

private:
    const TempFolder& To() const { return case_.Across ? ground.There : ground.Here; }

    void Fill() const
    {
        ground.Here.Write("from/file", "the content");
        ground.Here.SetMode("from/file", 0640);
        ::setxattr(ground.Here.Path("from/file").c_str(), "user.a", "1", 1, 0);
        ground.Here.MakeLink("from/link", "file");
        ground.Here.Write("from/tree/below/a", "in a");
        ground.Here.MakeLink("from/tree/below/b", "a");
        ground.Here.MakeFolder("from/tree/empty");
        ground.Here.Write("from/tree/c", "in c");
        To().MakeFolder("to");
    }

    Case case_;
    std::string from_, to_;
};

// What a case leaves when all goes well.
struct Outcome {
    std::size_t Calls = 0;
    Lines Source, Target;
};

class TransferFaults : public testing::TestWithParam<Case> {
protected:
    TransferFaults()
    {
        Trial run(GetParam());
        EXPECT_EQ(run.Go(), diskOk);
        good = {run.ground.Script.Calls.size(), run.SourceNow(false), run.TargetNow()};
    }

    // Does the target stand for all or nothing?
    void ExpectWholeTarget(const Trial& run, const Lines& target) const
    {
        EXPECT_TRUE(target == run.TargetBefore || target == good.Target)
            << testing::PrintToString(target);
    }

    void ExpectAfterFailure(const Trial& run) const
    {
        if (GetParam().Func == foDelete)
            return ExpectPartOfSource(run);
        const Lines target = run.TargetNow();
        const bool stays = run.SourceNow(true) == run.SourceBefore;
        ExpectWholeTarget(run, target);
        EXPECT_TRUE(stays || target == good.Target);
        const bool mayHaveBoth = GetParam().To == Target::Replaced;
        const bool mayBeTouched = GetParam().From == Source::Tree && GetParam().Across;
        EXPECT_TRUE(stays || mayBeTouched);
        EXPECT_TRUE(target == run.TargetBefore || mayHaveBoth || !stays);
    }

    // What is still there is whole, and nothing else came.
    static void ExpectPartOfSource(const Trial& run)
    {
        Trial fresh(GetParam());
        const Lines before = fresh.SourceNow(false), now = run.SourceNow(false);
        EXPECT_TRUE(std::includes(before.begin(), before.end(), now.begin(), now.end()));
    }

    void ExpectAfterDeath(const Trial& run) const
    {
        if (GetParam().Func == foDelete)
            return ExpectPartOfSource(run);
        const Lines source = run.SourceNow(false, false), target = run.TargetNow(false);
        ExpectWholeTarget(run, target);
        const bool stays = run.SourceNow(true, false) == run.SourceBefore;
        EXPECT_TRUE(stays || (source == good.Source && target == good.Target))
            << testing::PrintToString(source);
    }

    Outcome good;
};

INSTANTIATE_TEST_SUITE_P(Cases, TransferFaults, testing::ValuesIn(cases),
                         [](const auto& row) { return row.param.What; });

TEST_P(TransferFaults, One_failing_call_leaves_all_or_nothing)
{
    ASSERT_GT(good.Calls, 0u);
    int failures = 0;
    for (const int error : errors) {
        for (std::size_t call = 1; call <= good.Calls; ++call) {
            Trial run(GetParam());
            run.ground.Script.FailAt = call;
            run.ground.Script.Error = error;
            const int code = run.Go();
            SCOPED_TRACE(run.ground.Script.Calls[call - 1] + ", call " + std::to_string(call)
                         + ", error " + std::to_string(error) + " gave " + std::to_string(code));
            failures += code == diskOk ? 0 : 1;
            if (code == diskOk)
                EXPECT_EQ(run.TargetNow(), good.Target);
            else
                ExpectAfterFailure(run);
            EXPECT_EQ(run.SourceNow(false), run.SourceNow(false, false));
            EXPECT_EQ(run.TargetNow(), run.TargetNow(false));
            if (HasFailure())
                return;
        }
    }
    EXPECT_GT(failures, 0);
}

TEST_P(TransferFaults, A_killed_process_leaves_no_half_under_a_name)
{
    for (std::size_t call = 1; call <= good.Calls; ++call) {
        for (const bool behind : {false, true}) {
            Trial run(GetParam());
            (behind ? run.ground.Script.KillBehind : run.ground.Script.KillBefore) = call;
            SCOPED_TRACE("killed at call " + std::to_string(call));
            ASSERT_TRUE(run.GoToDeath());
            ExpectAfterDeath(run);
            if (HasFailure())
                return;
        }
    }
}

// The way back is as safe as the way there.
class TransferWaysBack : public TransferFaults {};

std::vector<Case> MovesAcross()
{
    std::vector<Case> moves;
    std::copy_if(std::begin(cases), std::end(cases), std::back_inserter(moves),
                 [](const Case& row) { return row.Func == foMove && row.Across; });
    return moves;
}

INSTANTIATE_TEST_SUITE_P(Cases, TransferWaysBack, testing::ValuesIn(MovesAcross()),
                         [](const auto& row) { return row.param.What; });

TEST_P(TransferWaysBack, A_process_killed_after_a_failure_leaves_no_half_either)
{
    for (const char* last : {"Sync", "Unlink", "Close"}) {
        for (std::size_t call = 1;; ++call) {
            Trial run(GetParam());
            run.ground.Script.FailAll = last;
            run.ground.Script.Error = EIO;
            run.ground.Script.KillBefore = call;
            SCOPED_TRACE(std::string(last) + " fails, killed at call " + std::to_string(call));
            if (!run.GoToDeath())
                break;
            ExpectAfterDeath(run);
            if (HasFailure())
                return;
        }
    }
}

} // namespace
} // namespace tavo
