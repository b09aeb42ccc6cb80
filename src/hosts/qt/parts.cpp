#include "hosts/qt/parts.h"

#include "controls/raised_border.h"
#include "hosts/pictures/image_bitmap.h"
#include "hosts/qt/binder.h"
#include "hosts/qt/colours.h"
#include "hosts/qt/icons.h"
#include "hosts/qt/key_of_event.h"
#include "hosts/qt/qt_text.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPainter>

namespace tavo {

namespace {

constexpr int middlePanel = 2, sidePanelChars = 24;

} // namespace

SplitBar::SplitBar(Label& label, Qt::CursorShape cursor, Binder& binder, QWidget* parent)
    : QWidget(parent), label_(label)
{
    setCursor(cursor);
    binder.Bind(*this, label, {});
    binder.Place(*this, label);
}

Control::Mouse SplitBar::At(const QMouseEvent& event) const
{
    const QPoint place = mapToParent(event.pos());
    return {event.button() == Qt::RightButton ? 2 : 1, Shift_Of(event.modifiers()),
            place.x() * twipsPerPixel - label_.Left, place.y() * twipsPerPixel - label_.Top};
}

void SplitBar::mousePressEvent(QMouseEvent* event)
{
    label_.MouseDown(At(*event));
}

void SplitBar::mouseMoveEvent(QMouseEvent* event)
{
    label_.MouseMove(At(*event));
}

void SplitBar::mouseReleaseEvent(QMouseEvent* event)
{
    label_.MouseUp(At(*event));
}

PicturePane::PicturePane(PictureBox& picture, Binder& binder, QWidget* parent)
    : QWidget(parent), picture_(picture)
{
    binder.Place(*this, picture);
    binder.Bind(*this, picture, [this](const PropSet& changed) {
        if (!changed.Has({Prop::Picture, Prop::Geometry, Prop::Style}))
            return;
        const PictureRef& wanted = picture_.Picture;
        if (changed.Has({Prop::Picture}))
            shown_ = wanted.Shown == PictureRef::Kind::Bitmap
                         ? QPixmap::fromImage(pictures::Image_Of(*wanted.Dots))
                         : QPixmap();
        update();
    });
}

void PicturePane::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    // The frame of the panel stays in sight around a picture that fills it.
    painter.setClipRect(parentWidget()->contentsRect().translated(-pos()));
    if (picture_.Picture.Get().Shown == PictureRef::Kind::Icon)
        Icon_OfClass({&picture_.Picture.Get().Icon, 1}).paint(&painter, rect());
    else if (!shown_.isNull())
        painter.drawPixmap(rect(), shown_);
}

StatusPanels::StatusPanels(StatusBar& bar, Binder& binder, QWidget* parent)
    : QStatusBar(parent), bar_(bar)
{
    setSizeGripEnabled(false);
    for (int number = 1; number <= bar.PanelCount(); ++number) {
        auto* panel = new QLabel(this);
        panel->setTextFormat(Qt::PlainText);
        panel->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
        const bool side = number != middlePanel;
        panel->setMinimumWidth(side ? sidePanelChars * fontMetrics().averageCharWidth() : 1);
        panel->setAttribute(Qt::WA_TransparentForMouseEvents);
        addWidget(panel, side ? 0 : 1);
        panels_.push_back(panel);
    }
    Binding* binding = binder.Bind(*this, bar, [this](const PropSet& changed) {
        if (changed.Has({Prop::Text}))
            ShowTexts();
    });
    panelChanged_ = bar.PanelChanged.Listen([this, binding](int number) {
        if (number == middlePanel)
            tip_.clear();
        binding->Mark(Prop::Text);
    });
}

void StatusPanels::ShowTip(const QString& tip)
{
    tip_ = tip;
    ShowTexts();
}

void StatusPanels::ShowTexts()
{
    for (int number = 1; number <= bar_.PanelCount(); ++number) {
        const bool hidden = number == middlePanel && !tip_.isEmpty();
        panels_[static_cast<std::size_t>(number - 1)]->setText(
            hidden ? tip_ : ToQtLine(bar_.Panel(number)));
    }
}

void StatusPanels::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->pos()))
        bar_.PersonClick();
}

void RaisedPane::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    for (const EdgeLine& line : RaisedBorder_Lines(width(), height())) {
        painter.setPen(Color_Of(line.Color, palette()));
        painter.drawLine(line.FromX, line.FromY, line.ToX, line.ToY);
    }
}

LinkButton::LinkButton(int padding, QWidget* parent) : QAbstractButton(parent), padding_(padding)
{
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
}

QSize LinkButton::sizeHint() const
{
    const QSize text = fontMetrics().size(Qt::TextShowMnemonic, this->text());
    return text + QSize(2 * padding_, padding_);
}

void LinkButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QPalette& colours = palette();
    QFont look = font();
    look.setUnderline(underMouse() && isEnabled());
    painter.setFont(look);
    painter.setPen(isEnabled() ? Accent_Colour()
                               : colours.color(QPalette::Disabled, QPalette::WindowText));
    const QRect room = rect().adjusted(padding_, 0, 0, 0);
    const QString shown =
        fontMetrics().elidedText(text(), Qt::ElideRight, room.width(), Qt::TextShowMnemonic);
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, shown);
}

} // namespace tavo
