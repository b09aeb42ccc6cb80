#include "hosts/qt/key_of_event.h"

#include <gtest/gtest.h>

#include <QKeyEvent>

namespace tavo {

TEST(KeyOfEvent, Keys_are_those_that_their_names_give)
{
    struct Row {
        int Key;
        Qt::KeyboardModifiers Held;
        const char* Text;
        const char* Name; // empty: no key of the program's
    };
    const Row rows[] = {
        {Qt::Key_Return, {}, "\r", "Return"},
        {Qt::Key_Enter, Qt::KeypadModifier, "\r", "Return"},
        {Qt::Key_Escape, {}, "\x1b", "Escape"},
        {Qt::Key_Backtab, Qt::ShiftModifier, "", "Shift+Tab"},
        {Qt::Key_Up, Qt::ShiftModifier, "", "Shift+Up"},
        {Qt::Key_Delete, {}, "\x7f", "Delete"},
        {Qt::Key_Backspace, Qt::ControlModifier, "\x7f", "Ctrl+Backspace"},
        {Qt::Key_C, Qt::ControlModifier, "\x03", "Ctrl+C"},
        {Qt::Key_A, Qt::ControlModifier, "a", "Ctrl+A"},
        {Qt::Key_1, Qt::ControlModifier, "1", "Ctrl+1"},
        {Qt::Key_D, Qt::AltModifier, "d", "Alt+D"},
        {Qt::Key_A, {}, "a", "a"},
        {Qt::Key_A, Qt::ShiftModifier, "A", "A"},
        {Qt::Key_Less, Qt::ShiftModifier, "<", "<"},
        {Qt::Key_Space, {}, " ", "Space"},
        {Qt::Key_Adiaeresis, {}, "\u00e4", "\u00e4"},
        {Qt::Key_At, Qt::ControlModifier | Qt::AltModifier, "@", "@"},
        {Qt::Key_F5, {}, "", "F5"},
        {Qt::Key_F7, {}, "", ""},
        {Qt::Key_Shift, Qt::ShiftModifier, "", ""},
        {Qt::Key_Control, Qt::ControlModifier, "", ""},
    };
    for (const Row& row : rows) {
        tavo::Key wanted;
        const bool named = *row.Name == 0 || Key_FromName(row.Name, wanted);
        ASSERT_TRUE(named) << row.Name;
        const QKeyEvent event(QEvent::KeyPress, row.Key, row.Held, QString::fromUtf8(row.Text));
        const tavo::Key key = Key_OfEvent(event);
        EXPECT_EQ(key.Code, wanted.Code) << row.Name << " " << row.Key;
        EXPECT_EQ(key.Shift, wanted.Shift) << row.Name << " " << row.Key;
        EXPECT_EQ(key.Char, wanted.Char) << row.Name << " " << row.Key;
    }
}

} // namespace tavo
