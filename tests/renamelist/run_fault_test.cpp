// Every action with trouble at every one of its steps: nothing is lost, and
// what an undo can bring back comes back.

#include "core/screens.h"
#include "renamelist/act_run.h"
#include "support/run_scenes.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace tavo {
namespace {

constexpr int posixCode = 2000;
constexpr int faultCodes[] = {diskDenied,  diskInUse,          diskMissing,    diskExists,
                              diskBadName, posixCode + ENOSPC, posixCode + EIO};

// Makes one call of a disk fail, counted from Arm on.
class OneFault {
public:
    explicit OneFault(MemoryDisk& disk)
    {
        disk.FailWhen([this](const MemoryDisk::Call& call) {
            if (!armed_ || ++calls_ != at_)
                return 0;
            Hit = call.Name;
            return code_;
        });
    }

    void Arm(int at, int code)
    {
        at_ = at;
        code_ = code;
        calls_ = 0;
        Hit.clear();
        armed_ = true;
    }
    void Disarm() { armed_ = false; }

    // The call that failed; empty for none.
    std::string Hit;

private:
    int at_ = 0, code_ = 0, calls_ = 0;
    bool armed_ = false;
};

class Trouble : public testing::TestWithParam<Ground> {
protected:
    Trouble() : ground(GetParam()), fault(*ground.Memory()) {}

    void SetUpScene(const RunScene& scene)
    {
        ground.Clear();
        Scene_SetUp(scene, ground);
    }
    SceneJudge Judge(const RunScene& scene)
    {
        SetUpScene(scene);
        SceneJudge judge(scene, ground);
        ground.Act(scene.Action);
        judge.LearnNames(ground.State());
        EXPECT_EQ(judge.Complaint(ground), "") << scene.Name;
        if (!scene.Copies()) {
            EXPECT_NE(judge.ComplaintAfterUndo(ground), "") << "it did nothing: " << scene.Name;
        }
        return judge;
    }

    // True when a call failed. Attributes that could not be cleared or put back
    // around a change of times are no part of its undo.
    bool FailIn(const RunScene& scene, const SceneJudge& judge, int at, int code)
    {
        SetUpScene(scene);
        fault.Arm(at, code);
        ground.Act(scene.Action);
        fault.Disarm();
        const std::string where = std::string(scene.Name) + ", call " + std::to_string(at) + " "
                                  + fault.Hit + " with " + std::to_string(code);
        EXPECT_EQ(judge.Complaint(ground), "") << where;
        if (!scene.IsUndone())
            return !fault.Hit.empty();
        ground.Act(actUndo);
        const bool isTimes = scene.Mode == modeDateTime;
        EXPECT_EQ(judge.ComplaintAfterUndo(ground, !isTimes || fault.Hit != "SetFileAttributesA",
                                           fault.Hit != "FileTimeToLocalSystemTime"),
                  "")
            << where;
        return !fault.Hit.empty();
    }

    bool FailInUndo(const RunScene& scene, const SceneJudge& judge, int at, int code)
    {
        SetUpScene(scene);
        ground.Act(scene.Action);
        fault.Arm(at, code);
        ground.Act(actUndo);
        fault.Disarm();
        EXPECT_EQ(judge.Complaint(ground), "")
            << scene.Name << ", undo, call " << at << " " << fault.Hit << " with " << code;
        return !fault.Hit.empty();
    }

    RunGround ground;
    OneFault fault;
};

INSTANTIATE_TEST_SUITE_P(InBothDialects, Trouble, testing::Values(Ground::Windows, Ground::Linux),
                         [](const auto& test) { return Ground_Name(test.param); });

TEST_P(Trouble, A_call_that_fails_loses_nothing_and_an_undo_goes_back)
{
    for (const RunScene& scene : runScenes) {
        const SceneJudge judge = Judge(scene);
        int calls = 0;
        for (const int code : faultCodes)
            for (int at = 1; FailIn(scene, judge, at, code) && !HasFailure(); ++at)
                ++calls;
        if (HasFailure())
            return;
        EXPECT_GE(calls, 3 * 7) << scene.Name;
    }
}

TEST_P(Trouble, A_call_that_fails_in_an_undo_loses_nothing)
{
    for (const RunScene& scene : runScenes) {
        if (!scene.IsUndone())
            continue;
        const SceneJudge judge = Judge(scene);
        int calls = 0;
        for (const int code : faultCodes)
            for (int at = 1; FailInUndo(scene, judge, at, code) && !HasFailure(); ++at)
                ++calls;
        if (HasFailure())
            return;
        EXPECT_GE(calls, 3 * 7) << scene.Name;
    }
}

TEST_P(Trouble, A_cancel_in_any_turn_is_undone)
{
    for (const RunScene& scene : runScenes) {
        const SceneJudge judge = Judge(scene);
        SetUpScene(scene);
        const int turns = ground.Act(scene.Action);
        EXPECT_GT(turns, 4) << scene.Name;
        for (int turn = 1; turn <= turns; ++turn) {
            SetUpScene(scene);
            ground.Act(scene.Action, turn, [this] { ground.Main.cmdActCancel.PersonClick(); });
            EXPECT_EQ(judge.Complaint(ground), "") << scene.Name << ", turn " << turn;
            if (!scene.IsUndone())
                continue;
            ground.Act(actUndo);
            EXPECT_EQ(judge.ComplaintAfterUndo(ground), "") << scene.Name << ", turn " << turn;
        }
    }
}

// The names of an undo that is ended can be brought back by another one; those
// of the other modes are then half way, and a row knows which way it can go.
TEST_P(Trouble, A_cancel_in_any_turn_of_an_undo_loses_nothing)
{
    for (const RunScene& scene : runScenes) {
        if (!scene.IsUndone())
            continue;
        const SceneJudge judge = Judge(scene);
        const int turns = ground.Act(actUndo);
        const bool isAsked = scene.Mode == modeNameNumber || scene.Mode == modeSearchReplace;
        for (int turn = 1; turn <= turns; ++turn) {
            SetUpScene(scene);
            ground.Act(scene.Action);
            ground.Act(actUndo, turn, [this] { ground.P.state.ActCancel = true; });
            EXPECT_EQ(judge.Complaint(ground), "") << scene.Name << ", turn " << turn;
            if (isAsked) {
                EXPECT_EQ(judge.ComplaintAfterUndo(ground), "") << scene.Name << ", " << turn;
            }
        }
    }
}

// What a person may do to the list while an action works on it.
struct Disturbance {
    const char* Name;
    void (*Do)(RunGround& ground);
};

void Key_Press(RunGround& ground, int code, int shift)
{
    ground.Main.PersonKey(&ground.List, Key{code, shift, 0});
}

constexpr Disturbance disturbances[] = {
    {"Ctrl+A",
     [](RunGround& ground) {
         Key_Press(ground, 'A', shiftCtrl);
         ground.List.PersonSelectAll();
     }},
    {"click on the first row",
     [](RunGround& ground) {
         ground.List.PersonPress(1, shiftNone);
         ground.List.PersonSelect({1}, 1);
         ground.List.PersonClicked(1);
     }},
    {"click on the third row", [](RunGround& ground) { ground.List.PersonSelect({3}, 3); }},
    {"Delete", [](RunGround& ground) { Key_Press(ground, keyDelete, shiftNone); }},
    {"header", [](RunGround& ground) { ground.List.ColumnClick(1); }},
    {"another run",
     [](RunGround& ground) {
         Act_Run(ground.P, actAll);
         Act_Run(ground.P, actRemove);
         Act_Run(ground.P, actUndo);
     }},
};

TEST_P(Trouble, What_a_person_does_to_the_list_in_any_turn_changes_nothing)
{
    for (const RunScene& scene : runScenes) {
        SetUpScene(scene);
        const int turns = ground.Act(scene.Action);
        const FolderState wanted = ground.State();
        const auto undoNames = ground.G.Column("UndoName"), names = ground.G.Names();
        for (const Disturbance& each : disturbances)
            for (int turn = 1; turn <= turns; ++turn) {
                SetUpScene(scene);
                ground.Act(scene.Action, turn, [&] { each.Do(ground); });
                EXPECT_EQ(State_Text(ground.State()), State_Text(wanted))
                    << scene.Name << ", " << each.Name << ", turn " << turn;
                EXPECT_EQ(ground.G.Names(), names) << scene.Name << ", " << each.Name;
                EXPECT_EQ(ground.G.Column("UndoName"), undoNames)
                    << scene.Name << ", " << each.Name;
                if (HasFailure())
                    return;
            }
    }
}

TEST_P(Trouble, What_a_person_does_to_the_list_in_any_turn_of_an_undo_changes_nothing)
{
    for (const RunScene& scene : runScenes) {
        if (!scene.IsUndone())
            continue;
        const SceneJudge judge = Judge(scene);
        const int turns = ground.Act(actUndo);
        for (const Disturbance& each : disturbances)
            for (int turn = 1; turn <= turns && !HasFailure(); ++turn) {
                SetUpScene(scene);
                ground.Act(scene.Action);
                ground.Act(actUndo, turn, [&] { each.Do(ground); });
                EXPECT_EQ(judge.ComplaintAfterUndo(ground), "")
                    << scene.Name << ", " << each.Name << ", turn " << turn;
            }
    }
}

// A close waits for the end, and may stop the action behind the row in hand.
TEST_P(Trouble, A_close_in_any_turn_loses_nothing)
{
    for (const RunScene& scene : runScenes) {
        const SceneJudge judge = Judge(scene);
        SetUpScene(scene);
        const int turns = ground.Act(scene.Action);
        for (int turn = 1; turn <= turns; ++turn) {
            SetUpScene(scene);
            ground.Act(scene.Action, turn, [this] { ground.Main.PersonClose(); });
            EXPECT_TRUE(ground.P.ClosePending) << scene.Name << ", turn " << turn;
            EXPECT_TRUE(ground.Main.Loaded()) << scene.Name << ", turn " << turn;
            ground.P.ClosePending = false;
            EXPECT_EQ(judge.Complaint(ground), "") << scene.Name << ", turn " << turn;
            if (!scene.IsUndone())
                continue;
            ground.Act(actUndo);
            EXPECT_EQ(judge.ComplaintAfterUndo(ground), "") << scene.Name << ", turn " << turn;
        }
    }
}

// The first row's file has gone, so its number is tried again, and the row in
// the way of both has to step aside twice.
TEST_P(Trouble, A_row_moved_aside_twice_and_not_reached_comes_back_to_its_first_name)
{
    ground.Clear();
    for (const char* path : {"d/a", "d/0a", "d/a1"})
        ground.AddFile(path, path);
    ground.Show({"d/a", "d/0a", "d/a1"});
    ground.Memory()->Remove(ground.Full("d/a"));
    Mode_Set(ground.P, modeNameNumber);
    ground.P.state.PreList = 1;
    ground.Main.txtNameNum[nnStartBox].Text = "1";
    ground.G.SetTemplates("<ON><#>", "<OE>");
    const FolderState before = ground.State();
    ground.G.Desktop.EachTurn = [this](int) {
        if (ground.G.Cell(2, "Name") == "0a1")
            ground.P.state.ActCancel = true;
    };
    Act_Run(ground.P, actAll);
    ground.G.Desktop.EachTurn = nullptr;
    EXPECT_EQ(ground.G.Names(), (std::vector<std::string>{"a", "0a1", "00a1"}));
    EXPECT_EQ(ground.G.Cell(3, "UndoName"), "a1");
    ground.Act(actUndo);
    EXPECT_EQ(State_Text(ground.State()), State_Text(before)) << ground.ListText();
}

} // namespace
} // namespace tavo
