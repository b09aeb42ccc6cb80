#include "hosts/qt/thumb_input.h"

#include "hosts/qt/binder.h"
#include "hosts/qt/key_of_event.h"
#include "hosts/qt/qt_text.h"
#include "hosts/qt/thumb_pointers.h"
#include "toolkit/form.h"

#include <QApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QTextDocument>
#include <QToolTip>

#include <utility>

namespace tavo {

namespace {

// 0 for a button that means nothing to the program.
int Button_Of(Qt::MouseButton button)
{
    return button == Qt::LeftButton ? 1 : button == Qt::RightButton ? 2 : 0;
}

bool InReach(const Control& control)
{
    return control.IsShown() && control.IsUsable();
}

// Where the control's corner is in `box`, in twips.
QPointF Corner_In(const PictureBox& box, const Control& control)
{
    QPointF corner;
    for (const Control* at = &control; at && at != &box; at = at->Container) {
        const double unit = at->Container ? at->Container->UnitTwips() : 1;
        corner += QPointF(at->Left * unit, at->Top * unit);
    }
    return corner;
}

// The place of the control in `box`, in pixels.
QRectF Place_In(const PictureBox& box, const Control& control)
{
    const double unit = control.Container ? control.Container->UnitTwips() / twipsPerPixel : 1;
    return {Corner_In(box, control) / twipsPerPixel,
            QSizeF(control.Width * unit, control.Height * unit)};
}

// What a control says of itself; a caption that has no room says it whole.
QString Tip_Of(const Control& control, const QWidget& page, double room)
{
    const auto* label = dynamic_cast<const Label*>(&control);
    if (!label || !control.ToolTipText.Get().empty())
        return ToQtLine(control.ToolTipText);
    const QString caption = ToQtLine(label->Caption);
    return page.fontMetrics().horizontalAdvance(caption) > room ? caption : QString();
}

} // namespace

ThumbInput::ThumbInput(QWidget& page, PictureBox& box, QWidget& wheel)
    : QObject(&page), page_(page), box_(box), form_(box.Owner()), wheel_(wheel)
{
    page.installEventFilter(this);
    dragChanged_ = form_.DragChanged.Listen([this] { DragCame(); });
    // Whoever has the person's eye now, the button may go up there unseen.
    deactivated_ = form_.Deactivate.Listen([this] { form_.PersonDragCancel(); });
}

bool ThumbInput::eventFilter(QObject*, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: Press(static_cast<QMouseEvent&>(*event)); return true;
    case QEvent::MouseMove: Move(static_cast<QMouseEvent&>(*event)); return true;
    case QEvent::MouseButtonRelease: Release(static_cast<QMouseEvent&>(*event)); return true;
    case QEvent::ToolTip: ShowTip(static_cast<QHelpEvent&>(*event)); return true;
    case QEvent::Wheel: return QCoreApplication::sendEvent(&wheel_, event);
    default: return false;
    }
}

ThumbInput::Spot ThumbInput::SpotAt(const QPointF& pixels) const
{
    if (!QRectF(page_.rect()).contains(pixels))
        return {};
    Spot spot{nullptr, pixels.x() * twipsPerPixel, pixels.y() * twipsPerPixel};
    spot.On = &form_.ControlAt(box_, spot.X, spot.Y);
    return spot;
}

ThumbInput::Spot ThumbInput::SpotOn(Control& control, const QPointF& pixels) const
{
    const QPointF place = pixels * twipsPerPixel - Corner_In(box_, control);
    return {&control, place.x() / control.UnitTwips(), place.y() / control.UnitTwips()};
}

Control* ThumbInput::Held() const
{
    Control* held = heldButton_ ? form_.Find(heldName_, heldIndex_) : nullptr;
    return held && InReach(*held) ? held : nullptr;
}

void ThumbInput::Press(const QMouseEvent& event)
{
    const int button = Button_Of(event.button());
    // Of a press before this one the end was not seen.
    if (!(event.buttons() & ~Qt::MouseButtons(event.button()))) {
        form_.PersonDragCancel();
        heldButton_ = 0;
    }
    const Spot spot = SpotAt(event.position());
    if (dragging_ || heldButton_ || !button || !spot.On || !InReach(*spot.On))
        return;
    heldName_ = spot.On->Name();
    heldIndex_ = spot.On->Index();
    heldButton_ = button;
    if (spot.On->DragsItself && button == 1)
        spot.On->Drag();
    else
        spot.On->MouseDown({button, Shift_Of(event.modifiers()), spot.X, spot.Y});
    DragFollow(event);
}

void ThumbInput::Move(const QMouseEvent& event)
{
    if (dragging_)
        return DragFollow(event);
    if (!event.buttons())
        heldButton_ = 0;
    Control* held = Held();
    if (!held)
        return;
    const Spot spot = SpotOn(*held, event.position());
    held->MouseMove({heldButton_, Shift_Of(event.modifiers()), spot.X, spot.Y});
    DragFollow(event);
}

void ThumbInput::Release(const QMouseEvent& event)
{
    if (Button_Of(event.button()) != heldButton_)
        return;
    if (!dragging_)
        return LetGo(event);
    heldButton_ = 0;
    DragFollow(event);
    form_.PersonDragDrop();
}

// The end of a press; a click, if the pointer is still where it began.
void ThumbInput::LetGo(const QMouseEvent& event)
{
    Control* held = Held();
    const int button = std::exchange(heldButton_, 0);
    if (!held)
        return;
    const Spot spot = SpotOn(*held, event.position());
    const bool clicks = button == 1 && SpotAt(event.position()).On == held;
    held->MouseUp({button, Shift_Of(event.modifiers()), spot.X, spot.Y});
    if (clicks && form_.Find(heldName_, heldIndex_) == held)
        held->Click();
}

void ThumbInput::ShowTip(const QHelpEvent& event)
{
    const Spot spot = SpotAt(event.pos());
    if (dragging_ || !spot.On)
        return QToolTip::hideText();
    const QRectF place = Place_In(box_, *spot.On);
    const QString text = Tip_Of(*spot.On, page_, place.width());
    // A name may look like the marks of a formatted text.
    QToolTip::showText(event.globalPos(), Qt::mightBeRichText(text) ? text.toHtmlEscaped() : text,
                       &page_, place.toAlignedRect());
}

// Tells the drag where the pointer is, if there is one.
void ThumbInput::DragFollow(const QMouseEvent& event)
{
    if (!form_.DragSource())
        return DragCame(); // what was dragged may have gone without a word
    const Spot spot = event.buttons() || event.type() == QEvent::MouseButtonRelease
                          ? SpotAt(event.position())
                          : Spot();
    form_.PersonDragOver(spot.On, spot.X, spot.Y);
    // No button is down: it went up where the window could not see it.
    if (!event.buttons() && event.type() == QEvent::MouseMove)
        form_.PersonDragCancel();
}

void ThumbInput::DragCame()
{
    Control* source = form_.DragSource();
    if (dragging_ == (source != nullptr))
        return;
    dragging_ = source != nullptr;
    page_.setMouseTracking(dragging_); // a button that went up unseen is noticed
    if (!dragging_) {
        heldButton_ = 0;
        iconChanged_.End();
        return page_.unsetCursor();
    }
    QToolTip::hideText();
    iconChanged_ = source->Changed.Listen([this](Prop what) {
        if (what == Prop::State)
            ShowPointer();
    });
    ShowPointer();
}

void ThumbInput::ShowPointer()
{
    if (const Control* source = form_.DragSource())
        page_.setCursor(Pointer_OfDrag(source->DragIcon, page_.devicePixelRatioF()));
}

} // namespace tavo
