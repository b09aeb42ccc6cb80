#include "hosts/qt/bar_view.h"

#include "hosts/qt/binder.h"
#include "hosts/qt/icons.h"
#include "hosts/qt/qt_text.h"
#include "hosts/qt/tool_actions.h"

#include <QApplication>
#include <QBoxLayout>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QStyleOptionToolButton>

namespace tavo {

namespace {

constexpr int filterChars = 13, modeChars = 14, numberChars = 4, digitChars = 2;
constexpr int boxGap = 2;
// What styles leave free around the picture of a button over its text.
constexpr int pictureRim = 4;
// The texts under the pictures are smaller than those of the window.
constexpr double textShare = 0.86;
constexpr std::string_view bandOfOneRow = "Address";

// How many characters a box shows; 0 is as many as there is room for.
struct BoxWidth {
    std::string_view Id;
    int Chars;
};

constexpr BoxWidth boxWidths[] = {
    {"ID_sFilter", filterChars},    {"ID_RenameList", modeChars}, {"ID_SelDistance", numberChars},
    {"ID_Seconds", numberChars},    {"ID_Width", numberChars},    {"ID_Height", numberChars},
    {"ID_BorderWidth", digitChars}, {"ID_sAddress", 0},
};

int Chars_Of(const Tool& tool)
{
    for (const BoxWidth& row : boxWidths)
        if (row.Id == tool.Name())
            return row.Chars;
    return filterChars;
}

Qt::ToolButtonStyle Look_Of(const Tool& tool, const QAction& action, bool oneRow)
{
    if (tool.Style == ToolStyle::TextOnly || action.icon().isNull())
        return Qt::ToolButtonTextOnly;
    if (tool.Style == ToolStyle::Picture)
        return Qt::ToolButtonIconOnly;
    return oneRow ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonTextUnderIcon;
}

} // namespace

BarView::BarView(const Band& band, ToolActions& actions, Binder& binder, QWidget* parent)
    : QToolBar(parent), band_(band), actions_(actions), binder_(binder),
      oneRow_(band.Name() == bandOfOneRow)
{
    setObjectName(ToQt(band.Name()));
    setWindowTitle(ToQt(band.Name()));
    setMovable(false);
    setFloatable(false);
    setContextMenuPolicy(Qt::PreventContextMenu);
    if (oneRow_)
        setIconSize(QSize(1, 1) * style()->pixelMetric(QStyle::PM_SmallIconSize));
    else
        FitFont();
    for (Tool* tool : band.Tools())
        AddTool(*tool);
    // The style's own arrow is black, on dark bars as well.
    if (auto* more = findChild<QToolButton*>("qt_toolbar_ext_button"))
        more->setIcon(Icon_Named("arrow-right-double"));
}

void BarView::FitFont()
{
    QFont smaller = QApplication::font();
    if (smaller.pointSizeF() > 0)
        smaller.setPointSizeF(smaller.pointSizeF() * textShare);
    setFont(smaller);
}

void BarView::AddTool(Tool& tool)
{
    switch (tool.Kind()) {
    case ToolKind::Separator: addSeparator(); return;
    case ToolKind::DropDown: return AddDropDown(tool);
    case ToolKind::Combo:
    case ToolKind::Edit: return AddBox(tool);
    case ToolKind::Label: return AddLabel(tool);
    default: return AddButton(tool);
    }
}

void BarView::AddButton(Tool& tool)
{
    if (oneRow_)
        actions_.KeepOneLine(tool);
    QAction* action = actions_.Of(tool);
    addAction(action);
    auto* button = qobject_cast<QToolButton*>(widgetForAction(action));
    button->setFocusPolicy(Qt::NoFocus);
    new Binding(binder_.Queue(), *button, tool.Changed, [=, this, &tool](const PropSet& changed) {
        if (changed.Has({Prop::Style, Prop::Picture}))
            button->setToolButtonStyle(Look_Of(tool, *action, oneRow_));
        if (changed.Has({Prop::Caption}))
            button->setAccessibleName(Plain_Caption(tool.Caption));
    });
}

void BarView::AddDropDown(Tool& tool)
{
    QAction* action = actions_.Of(tool);
    auto* button = new ArrowButton(this);
    button->setFocusPolicy(Qt::NoFocus);
    button->setAutoRaise(true);
    button->setPopupMode(QToolButton::MenuButtonPopup);
    button->setDefaultAction(action);
    button->setIconSize(iconSize());
    connect(button, &ArrowButton::ArrowPressed, this, [this, button, &tool] {
        dropped_ = button;
        tool.Height.SetQuietly(button->height() * twipsPerPixel);
        actions_.Bars().PersonDropDown(tool);
        dropped_ = nullptr;
    });
    new Binding(binder_.Queue(), *button, tool.Changed, [=, this, &tool](const PropSet& changed) {
        if (changed.Has({Prop::Style, Prop::Picture}))
            button->setToolButtonStyle(Look_Of(tool, *action, oneRow_));
        if (changed.Has({Prop::Caption}))
            button->setAccessibleName(Plain_Caption(tool.Caption));
    });
    Stand(*button, tool);
}

// A box with its caption under it, as the buttons have theirs.
void BarView::AddBox(Tool& tool)
{
    auto* holder = new QWidget(this);
    auto* layout = new QVBoxLayout(holder);
    layout->setContentsMargins(boxGap, oneRow_ ? 0 : boxGap, boxGap, 0);
    layout->setSpacing(boxGap);
    QWidget* box = nullptr;
    if (ComboBox* combo = tool.Combo()) {
        auto* widget = new QComboBox(holder);
        widget->setMinimumContentsLength(Chars_Of(tool));
        widget->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        binder_.Bind(*widget, *combo);
        if (widget->lineEdit()) // it is what has the focus
            widget->lineEdit()->setAccessibleName(Plain_Caption(tool.Caption));
        box = widget;
    } else {
        auto* widget = new QLineEdit(holder);
        binder_.Bind(*widget, *tool.Box);
        if (const int chars = Chars_Of(tool))
            widget->setFixedWidth(chars * fontMetrics().averageCharWidth() + height());
        box = widget;
    }
    holder->setSizePolicy(Chars_Of(tool) > 0 ? QSizePolicy::Fixed : QSizePolicy::Expanding,
                          QSizePolicy::Preferred);
    const QString caption = Plain_Caption(tool.Caption);
    auto* label = new QLabel(caption, holder);
    box->setAccessibleName(caption);
    for (QWidget* part : {box, static_cast<QWidget*>(label)}) {
        part->setToolTip(ToQt(tool.ToolTipText));
        part->setStatusTip(ToQt(tool.Description));
    }
    label->setAlignment(Qt::AlignCenter);
    layout->addWidget(box, 0, Chars_Of(tool) > 0 ? Qt::AlignHCenter : Qt::Alignment());
    if (!oneRow_) // the caption in line with those of the buttons
        layout->addSpacing(iconSize().height() + pictureRim - box->sizeHint().height());
    layout->addWidget(label);
    layout->addStretch();
    const bool hasLabel = !oneRow_;
    new Binding(binder_.Queue(), *label, tool.Changed, [=, &tool](const PropSet& changed) {
        if (changed.Has({Prop::Style}))
            label->setVisible(hasLabel && tool.Style == ToolStyle::PictureAndText);
    });
    Stand(*holder, tool);
}

void BarView::AddLabel(Tool& tool)
{
    auto* label = new QLabel(this);
    label->setContentsMargins(boxGap, 0, boxGap, 0);
    new Binding(binder_.Queue(), *label, tool.Changed, [=, &tool](const PropSet& changed) {
        if (changed.Has({Prop::Caption}))
            label->setText(Plain_Caption(tool.Caption));
    });
    Stand(*label, tool);
}

void BarView::Stand(QWidget& widget, Tool& tool)
{
    QAction* place = addWidget(&widget);
    new Binding(binder_.Queue(), *place, tool.Changed, [&, place](const PropSet& changed) {
        if (changed.Has({Prop::Visible}))
            place->setVisible(tool.Visible);
        if (changed.Has({Prop::Enabled}))
            widget.setEnabled(tool.Enabled);
    });
}

void BarView::PopUp(QMenu& menu, const QPoint& place)
{
    menu.popup(dropped_ ? dropped_->mapToGlobal(place) : QCursor::pos());
}

void ArrowButton::mousePressEvent(QMouseEvent* event)
{
    QStyleOptionToolButton option;
    initStyleOption(&option);
    const QRect arrow =
        style()->subControlRect(QStyle::CC_ToolButton, &option, QStyle::SC_ToolButtonMenu, this);
    if (event->button() == Qt::LeftButton && arrow.contains(event->pos()))
        emit ArrowPressed();
    else
        QToolButton::mousePressEvent(event);
}

void ArrowButton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Down)
        emit ArrowPressed();
    else
        QToolButton::keyPressEvent(event);
}

} // namespace tavo
