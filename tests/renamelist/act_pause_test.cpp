#include "renamelist/act_run.h"

#include "support/list_run.h"

namespace tavo {

namespace {

using Texts = std::vector<std::string>;

class Pause : public ListRun {};

INSTANTIATE_TEST_SUITE_P(InBothDialects, Pause, bothDialects, Dialect_Name);

} // namespace

TEST_P(Pause, Cancel_stops_behind_the_row_in_progress_and_keeps_what_was_done)
{
    LoadRows(4);
    s.SupWarnRen = 1;
    ground.Desktop.EachTurn = [&](int) {
        if (!ground.Cell(1, "UndoName").empty())
            f.cmdActCancel.PersonClick();
    };
    Act_Run(p, actAll);
    ground.Desktop.EachTurn = nullptr;
    EXPECT_EQ(ground.Names(), (Texts{"xa.txt", "b.txt", "c.txt", "d.txt"}));
    EXPECT_EQ(ground.Column("UndoName"), (Texts{"a.txt", "", "", ""}));
    EXPECT_EQ(Value(1), "1");
    EXPECT_EQ(Stage(), "Finished! Click Done to Continue...");
    EXPECT_EQ(s.LastRows, 4);
}

TEST_P(Pause, Escape_cancels_as_well)
{
    LoadRows(4);
    s.SupWarnRen = 1;
    ground.Desktop.EachTurn = [&](int) {
        if (!ground.Cell(2, "UndoName").empty())
            f.PersonKey(nullptr, Key{keyEscape, shiftNone, 0});
    };
    Act_Run(p, actAll);
    ground.Desktop.EachTurn = nullptr;
    EXPECT_EQ(ground.Names(), (Texts{"xa.txt", "xb.txt", "c.txt", "d.txt"}));
}

TEST_P(Pause, A_run_starts_afresh_after_a_cancelled_one)
{
    LoadRows(2);
    s.SupWarnRen = 1;
    s.ActCancel = true;
    s.ActPaused = true;
    Act_Run(p, actAll);
    EXPECT_EQ(ground.Names(), (Texts{"xa.txt", "xb.txt"}));
    EXPECT_FALSE(s.ActPaused);
}

namespace {

// Presses Pause when the second row is done, and then runs `spin` at each turn
// of the pause, with the number of the turn within it.
struct PauseScript {
    PauseScript(MemoryListGround& ground, std::function<void(int)> spin)
    {
        ground.Desktop.EachTurn = [this, &ground](int) {
            if (!Pressed && !ground.Cell(2, "UndoName").empty()) {
                Pressed = true;
                ground.During(1, [this, &ground] { Next(ground); });
                ground.Main.cmdActPause.PersonClick();
                Over = true;
            }
        };
        Spin = std::move(spin);
    }

    void Next(MemoryListGround& ground)
    {
        if (Over)
            return;
        ++Turns;
        ground.During(1, [this, &ground] { Next(ground); });
        Spin(Turns);
    }

    bool Pressed = false, Over = false;
    int Turns = 0;
    std::function<void(int)> Spin;
};

} // namespace

TEST_P(Pause, A_pause_suspends_the_walk_until_the_second_click)
{
    LoadRows(4);
    s.SupWarnRen = 1;
    std::string stageBefore;
    ground.SetTemplates("<#>", "<OE>");
    PauseScript script(ground, [&](int turn) {
        EXPECT_EQ(f.cmdActPause.Caption.Get(), "Continue");
        EXPECT_EQ(Stage(), "Paused... Press Continue to Restart");
        EXPECT_EQ(s.ActSavedInfo, "Numbering Files...");
        EXPECT_TRUE(s.ActPaused);
        EXPECT_EQ(ground.Names(), (Texts{"1.txt", "2.txt", "c.txt", "d.txt"}));
        if (turn == 100) {
            f.cmdActPause.PersonClick();
            EXPECT_FALSE(s.ActPaused);
            EXPECT_EQ(f.cmdActPause.Caption.Get(), "&Pause");
            EXPECT_EQ(Stage(), "Numbering Files...");
        }
    });
    Act_Run(p, actAll);
    EXPECT_EQ(script.Turns, 100);
    EXPECT_EQ(ground.Names(), (Texts{"1.txt", "2.txt", "3.txt", "4.txt"}));
}

TEST_P(Pause, Cancel_ends_a_pause_and_the_walk)
{
    LoadRows(4);
    s.SupWarnRen = 1;
    PauseScript script(ground, [&](int turn) {
        if (turn == 3)
            f.cmdActCancel.PersonClick();
    });
    Act_Run(p, actAll);
    EXPECT_EQ(script.Turns, 3);
    EXPECT_EQ(ground.Names(), (Texts{"xa.txt", "xb.txt", "c.txt", "d.txt"}));
    EXPECT_EQ(Stage(), "Finished! Click Done to Continue...");
    EXPECT_FALSE(s.ActPaused);

    // The next run has its button back.
    ground.Desktop.EachTurn = nullptr;
    Act_Done(p);
    Act_Run(p, actAll);
    EXPECT_EQ(f.cmdActPause.Caption.Get(), "&Pause");
}

TEST_P(Pause, Escape_in_a_pause_takes_effect_when_the_pause_ends)
{
    LoadRows(4);
    s.SupWarnRen = 1;
    PauseScript script(ground, [&](int turn) {
        if (turn == 2)
            f.PersonKey(nullptr, Key{keyEscape, shiftNone, 0});
        EXPECT_TRUE(s.ActPaused);
        if (turn == 5)
            f.cmdActPause.PersonClick();
    });
    Act_Run(p, actAll);
    EXPECT_EQ(script.Turns, 5);
    EXPECT_EQ(ground.Names(), (Texts{"xa.txt", "xb.txt", "c.txt", "d.txt"}));
}

TEST_P(Pause, Closing_the_window_in_a_pause_ends_both)
{
    LoadRows(4);
    s.SupWarnRen = 1;
    PauseScript script(ground, [&](int turn) {
        if (turn == 2)
            f.PersonClose();
    });
    Act_Run(p, actAll);
    EXPECT_EQ(script.Turns, 2);
    EXPECT_EQ(ground.Names(), (Texts{"xa.txt", "xb.txt", "c.txt", "d.txt"}));
    EXPECT_TRUE(p.ClosePending);
    EXPECT_TRUE(f.Loaded());
    p.Settle();
    EXPECT_FALSE(f.Loaded());
}

TEST_P(Pause, A_window_that_is_to_close_cannot_be_paused_again)
{
    LoadRows(4);
    s.SupWarnRen = 1;
    ground.Desktop.MostTurns = 10'000;
    PauseScript script(ground, [&](int turn) {
        if (turn == 2) {
            f.PersonClose();
            f.cmdActPause.PersonClick();
        }
    });
    Act_Run(p, actAll);
    EXPECT_EQ(script.Turns, 2);
    EXPECT_EQ(ground.Names(), (Texts{"xa.txt", "xb.txt", "c.txt", "d.txt"}));
}

TEST_P(Pause, Pausing_again_and_again)
{
    LoadRows(4);
    s.SupWarnRen = 1;
    int pauses = 0;
    ground.Desktop.EachTurn = [&](int) {
        if (p.Busy() && s.CurScreen == screenAction && pauses < 6) {
            ++pauses;
            ground.During(1, [&] { f.cmdActPause.PersonClick(); });
            f.cmdActPause.PersonClick();
        }
    };
    Act_Run(p, actAll);
    ground.Desktop.EachTurn = nullptr;
    EXPECT_EQ(pauses, 6);
    EXPECT_EQ(ground.Names(), (Texts{"xa.txt", "xb.txt", "xc.txt", "xd.txt"}));
}

} // namespace tavo
