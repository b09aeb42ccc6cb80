#include "hosts/qt/thumb_canvas.h"

#include "hosts/qt/binder.h"
#include "hosts/qt/colours.h"

#include <QApplication>
#include <QPaintEvent>
#include <QPainter>

namespace tavo {

namespace {

// Beyond so many pieces it is cheaper to paint the lot.
constexpr int mostPieces = 40;
// Captions that are kept, in pages: a third of the items are captions.
constexpr std::size_t captionsPerItem = 2;

// The desktop's own: that of the widget has the box's colours in it.
QPalette Palette_Here()
{
    return QApplication::palette();
}

} // namespace

ThumbCanvas::ThumbCanvas(PictureBox& box, Ground ground, Binder& binder, QWidget* parent)
    : QWidget(parent), box_(box), ground_(ground), binder_(binder)
{
    setAttribute(Qt::WA_OpaquePaintEvent, ground == Ground::OfBox);
    binder.Place(*this, box);
    Binding* binding = binder.Bind(*this, box, [this](const PropSet& changed) {
        if (changed.Has({Prop::Colours}))
            update();
        Follow();
    });
    insideChanged_ = box.InsideChanged.Listen([binding] { binding->Mark(Prop::State); });
}

void ThumbCanvas::Follow()
{
    Scene now = Scene_Of(box_, binder_);
    QRegion pieces;
    int count = 0;
    for (std::size_t i = 0; i < now.size() && now.size() == scene_.size(); ++i) {
        if (now[i] == scene_[i])
            continue;
        pieces |= (now[i].Place | scene_[i].Place).toAlignedRect();
        if (++count > mostPieces)
            break;
    }
    if (now.size() != scene_.size() || count > mostPieces)
        update();
    else if (count > 0)
        update(pieces);
    scene_ = std::move(now);
}

void ThumbCanvas::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    const QPalette palette = Palette_Here();
    if (ground_ == Ground::OfBox)
        painter.fillRect(event->rect(), Color_Of(box_.BackColor, palette));
    ScenePainter items(painter, palette, font(), captions_);
    for (const SceneItem& item : scene_)
        if (event->region().intersects(item.Place.toAlignedRect()))
            items.Paint(item);
    captions_.HoldTo(captionsPerItem * scene_.size());
}

} // namespace tavo
