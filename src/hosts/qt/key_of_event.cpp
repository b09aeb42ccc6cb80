#include "hosts/qt/key_of_event.h"

#include "hosts/qt/qt_text.h"

#include <QKeyEvent>

namespace tavo {

namespace {

struct NamedKey {
    int Qt;
    std::string_view Name;
};

constexpr NamedKey namedKeys[] = {
    {Qt::Key_Return, "Return"},       {Qt::Key_Enter, "Return"},  {Qt::Key_Escape, "Escape"},
    {Qt::Key_Backspace, "Backspace"}, {Qt::Key_Tab, "Tab"},       {Qt::Key_Backtab, "Tab"},
    {Qt::Key_Space, "Space"},         {Qt::Key_Delete, "Delete"}, {Qt::Key_Up, "Up"},
    {Qt::Key_Down, "Down"},           {Qt::Key_Left, "Left"},     {Qt::Key_Right, "Right"},
    {Qt::Key_Home, "Home"},           {Qt::Key_End, "End"},       {Qt::Key_PageUp, "PageUp"},
    {Qt::Key_PageDown, "PageDown"},   {Qt::Key_F5, "F5"},         {Qt::Key_F6, "F6"},
};

struct NamedShift {
    Qt::KeyboardModifier Qt;
    KeyShift Shift;
    std::string_view Prefix;
};

constexpr NamedShift namedShifts[] = {
    {Qt::ControlModifier, shiftCtrl, "Ctrl+"},
    {Qt::AltModifier, shiftAlt, "Alt+"},
    {Qt::ShiftModifier, shiftShift, "Shift+"},
};

// The name without shifts; empty for a key without one.
std::string PlainName(const QKeyEvent& event, bool typesNothing)
{
    for (const NamedKey& row : namedKeys)
        if (row.Qt == event.key())
            return std::string(row.Name);
    const int code = event.key();
    if (typesNothing)
        return code > Qt::Key_Space && code < Qt::Key_Escape ? FromQt(QString(QChar(code)))
                                                             : std::string();
    const QString text = event.text();
    return Chars_In(text) == 1 ? FromQt(text) : std::string();
}

} // namespace

int Shift_Of(Qt::KeyboardModifiers modifiers)
{
    int shift = shiftNone;
    for (const NamedShift& row : namedShifts)
        if (modifiers & row.Qt)
            shift |= row.Shift;
    return shift;
}

Key Key_OfEvent(const QKeyEvent& event)
{
    const int shift = Shift_Of(event.modifiers());
    // AltGr arrives as Ctrl with Alt together with the text that it types.
    const bool types = !event.text().isEmpty() && event.text()[0].isPrint();
    const bool held = (shift & (shiftCtrl | shiftAlt)) != 0
                      && !(types && (shift & shiftCtrl) && (shift & shiftAlt));
    std::string name = PlainName(event, held);
    if (name.empty())
        return {};
    Key key;
    std::string shifts;
    const bool named = name.size() > 1 && !event.text().startsWith(ToQt(name));
    for (const NamedShift& row : namedShifts)
        if ((shift & row.Shift) && (held || named))
            shifts += row.Prefix;
    return Key_FromName(shifts + name, key) ? key : Key();
}

} // namespace tavo
