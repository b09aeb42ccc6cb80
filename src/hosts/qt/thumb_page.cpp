#include "hosts/qt/thumb_page.h"

#include "core/frm_main.h"
#include "hosts/qt/binder.h"
#include "hosts/qt/scroll_binding.h"
#include "hosts/qt/thumb_input.h"

#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QStyleOption>

#include <algorithm>

namespace tavo {

namespace {

// A strip over or under the grid with its arrow. The letter that is its caption
// shows one only in a font that few desktops have.
class Strip : public QWidget {
public:
    Strip(Label& label, QStyle::PrimitiveElement arrow, Binder& binder, QWidget* parent)
        : QWidget(parent), arrow_(arrow)
    {
        binder.Place(*this, label);
        binder.Bind(*this, label, {});
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        QStyleOption option;
        option.initFrom(this);
        painter.fillRect(rect(), option.palette.button());
        painter.setPen(option.palette.color(QPalette::Mid));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
        const int side = std::min(width(), height());
        option.rect = QRect(0, 0, side, side);
        option.rect.moveCenter(rect().center());
        style()->drawPrimitive(arrow_, &option, &painter, this);
    }

private:
    QStyle::PrimitiveElement arrow_;
};

} // namespace

ThumbPage::ThumbPage(FrmMain& form, Binder& binder, QWidget* parent)
    : ThumbCanvas(form.picThumbnails, Ground::OfWindow, binder, parent)
{
    // The page gets the mouse for all that is painted on it, so that a drag can
    // go from one thing to any other.
    auto* grid = new ThumbCanvas(form.picThumbs, Ground::OfBox, binder, this);
    grid->setAttribute(Qt::WA_TransparentForMouseEvents);
    grid->setAccessibleName(tr("Thumbnails"));
    grid->setAccessibleDescription(tr("The pictures of the rename list"));
    binder.AddHome(*grid);
    new Strip(form.lblThumbsSD, QStyle::PE_IndicatorArrowUp, binder, this);
    new Strip(form.lblThumbsSU, QStyle::PE_IndicatorArrowDown, binder, this);
    auto* find = new QPushButton(this);
    binder.Place(*find, form.cmdThumbsFind);
    binder.Bind(*find, form.cmdThumbsFind);
    auto* bar = new QScrollBar(Qt::Vertical, this);
    binder.Place(*bar, form.vsbThumbs);
    ScrollBar_Bind(binder, *bar, form.vsbThumbs);
    bar->setAttribute(Qt::WA_NoMousePropagation); // the page hands the wheel on to it
    bar->setAccessibleName(tr("Lines of thumbnails"));
    form.vsbThumbs.Width = bar->sizeHint().width() * twipsPerPixel;
    form.cmdThumbsFind.Height = find->sizeHint().height() * twipsPerPixel;
    new ThumbInput(*this, form.picThumbnails, *bar);
}

} // namespace tavo
