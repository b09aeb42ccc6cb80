#include "hosts/qt/tool_actions.h"

#include "hosts/qt/icons.h"
#include "hosts/qt/qt_text.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>
#include <QMenuBar>
#include <QStatusTipEvent>

#include <algorithm>

namespace tavo {

namespace {

struct NamedShift {
    KeyShift Shift;
    const char* Name;
};

constexpr NamedShift namedShifts[] = {
    {shiftCtrl, "Ctrl+"},
    {shiftAlt, "Alt+"},
    {shiftShift, "Shift+"},
};

// Shortcuts are letters. They are shown and not registered: keys go to the
// form first, which may need them itself.
QString Shortcut_Text(const Key& key)
{
    QString text;
    for (const NamedShift& row : namedShifts)
        if (key.Shift & row.Shift)
            text += row.Name;
    return text + QChar(key.Code);
}

// A letter goes to the entries that can be chosen: Qt would also stop at one
// that is disabled.
QString Entry_Text(const Tool& tool)
{
    QString text = ToQt(tool.Caption);
    if (!tool.Enabled)
        text = Plain_Caption(tool.Caption).replace('&', "&&");
    return tool.Shortcut.Code == keyNone ? text : text + "\t" + Shortcut_Text(tool.Shortcut);
}

// A long caption takes two lines on a button; a short one leaves the second
// empty, so that all pictures of a bar stand at one height.
QString InTwoLines(QString text)
{
    constexpr int longestLine = 9;
    const qsizetype blank = text.lastIndexOf(' ');
    if (text.size() <= longestLine || blank <= 0)
        return text + "\n ";
    text[blank] = '\n';
    return text;
}

bool StandsOnABand(const ToolBars& bars, const Tool* tool)
{
    return std::any_of(bars.Bands().begin(), bars.Bands().end(), [&](const auto& band) {
        const auto& tools = band->Tools();
        return std::find(tools.begin(), tools.end(), tool) != tools.end();
    });
}

} // namespace

ToolActions::ToolActions(ToolBars& bars, FrameQueue& queue, QWidget& window)
    : QObject(&window), bars_(bars), queue_(queue), window_(window),
      connection_(bars.BandChanged.Listen([this](const Band& band) { Follow(band); }))
{
}

QAction* ToolActions::Of(Tool& tool)
{
    if (const QPointer<QAction> made = actions_.value(&tool))
        return made;
    QAction* action = Make(tool);
    actions_[&tool] = action;
    return action;
}

QAction* ToolActions::Make(Tool& tool)
{
    QAction* action =
        tool.Kind() == ToolKind::Menu ? MenuOf(tool)->menuAction() : new QAction(&window_);
    action->setObjectName(ToQt(tool.Name()));
    if (tool.Kind() == ToolKind::Separator) {
        action->setSeparator(true);
        return action;
    }
    auto* binding =
        new Binding(queue_, *action, tool.Changed, [this, action, &tool](const PropSet& changed) {
            Show(*action, tool, changed);
        });
    connect(action, &QAction::triggered, this, [this, &tool, binding] {
        binding->Mark(Prop::Value); // Qt has ticked it already
        QStatusTipEvent noTip{QString()};
        QCoreApplication::sendEvent(&window_, &noTip);
        bars_.PersonClick(tool);
        queue_.Flush();
    });
    return action;
}

void ToolActions::Show(QAction& action, const Tool& tool, const PropSet& changed)
{
    if (changed.Has({Prop::Caption, Prop::Enabled})) {
        const QString plain = Plain_Caption(tool.Caption);
        action.setText(Entry_Text(tool));
        QString text = oneLine_.contains(&tool) ? plain : InTwoLines(plain);
        action.setIconText(text.replace('&', "&&"));
    }
    if (changed.Has({Prop::Caption, Prop::ToolTip}))
        action.setToolTip(tool.ToolTipText.Get().empty() ? Plain_Caption(tool.Caption)
                                                         : ToQt(tool.ToolTipText));
    if (changed.Has({Prop::State}))
        action.setStatusTip(ToQt(tool.Description));
    if (changed.Has({Prop::Picture}) && tool.Kind() != ToolKind::Menu)
        action.setIcon(Icon_Named(tool.IconName.Get()));
    if (changed.Has({Prop::Enabled}))
        action.setEnabled(tool.Enabled);
    if (changed.Has({Prop::Visible}))
        action.setVisible(tool.Visible);
    if (changed.Has({Prop::Value})) {
        action.setCheckable(tool.Kind() == ToolKind::Toggle || tool.Checked);
        action.setChecked(tool.Checked);
    }
}

QMenu* ToolActions::MenuOf(Tool& tool)
{
    if (const QPointer<QMenu> made = menus_.value(&tool))
        return made;
    auto* menu = new QMenu(&window_);
    menus_[&tool] = menu;
    if (const Band* band = bars_.FindBand(tool.Name()))
        Fill(*menu, *band);
    return menu;
}

void ToolActions::Fill(QWidget& menu, const Band& band)
{
    fillings_[&band] =
        new Binding(queue_, menu, never_, [this, &menu, &band](const PropSet& changed) {
            if (!changed.Has({Prop::Items}))
                return; // a menu bar that gets the focus must keep what it shows
            for (QAction* action : menu.actions())
                menu.removeAction(action);
            for (Tool* tool : band.Tools())
                menu.addAction(Of(*tool));
        });
}

// A menu that is filled tool by tool is built anew once, with the next frame;
// but a tool that is going must not be clicked any more.
void ToolActions::Follow(const Band& band)
{
    DropGone();
    if (const QPointer<Binding> filling = fillings_.value(&band))
        filling->Mark(Prop::Items);
}

void ToolActions::DropGone()
{
    for (auto entry = actions_.begin(); entry != actions_.end();) {
        if (StandsOnABand(bars_, entry.key())) {
            ++entry;
            continue;
        }
        if (QAction* action = entry.value()) {
            qDeleteAll(action->findChildren<Binding*>());
            action->setVisible(false);
            action->disconnect(this);
            action->deleteLater(); // its own click may be what takes it away
        }
        entry = actions_.erase(entry);
    }
}

} // namespace tavo
