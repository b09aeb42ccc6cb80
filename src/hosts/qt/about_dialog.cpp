#include "hosts/qt/about_dialog.h"

#include "controls/frm_about.h"
#include "hosts/qt/dialog_parts.h"
#include "hosts/qt/form_window.h"
#include "hosts/qt/icons.h"
#include "hosts/qt/person_input.h"
#include "hosts/qt/qt_text.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

namespace tavo {

namespace {

constexpr int logoPixels = 96, textChars = 54, textLines = 9;
constexpr double versionSize = 1.5;

void Enlarge(QWidget& widget)
{
    QFont font = widget.font();
    font.setBold(true);
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * versionSize);
    widget.setFont(font);
}

// A text of several lines to be read.
QPlainTextEdit* InfoText(TextBox& box, Binder& binder, QWidget* parent)
{
    auto* text = new QPlainTextEdit(parent);
    text->setReadOnly(true);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    const QFontMetrics letters = text->fontMetrics();
    text->setMinimumSize(textChars * letters.averageCharWidth(), textLines * letters.lineSpacing());
    binder.Bind(*text, box, [text, &box](const PropSet& changed) {
        if (changed.Has({Prop::Text}))
            text->setPlainText(ToQt(box.Text));
    });
    return text;
}

} // namespace

AboutDialog::AboutDialog(FrmAbout& form, QWidget* owner)
    : QDialog(owner), form_(form), binder_(new Binder(form, *this))
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(dialogMargin, dialogMargin, dialogMargin, dialogMargin);
    column->setSpacing(dialogGap);
    column->setSizeConstraint(QLayout::SetFixedSize);
    auto* inside = new QHBoxLayout;
    inside->setSpacing(2 * dialogGap);
    inside->addWidget(Logo(), 0, Qt::AlignTop);
    inside->addWidget(Info(), 1);
    column->addLayout(inside);
    column->addLayout(DialogButtons(this, {&form.cmdClose}, *binder_));
    Form_TakeSize(form, sizeHint());
    new FormWindow(form, *this, binder_->Queue());
    new PersonInput(*binder_);
    binder_->WidgetOf(&form.cmdClose)->setFocus();
}

QWidget* AboutDialog::Logo()
{
    auto* logo = new QLabel(this);
    logo->setPixmap(Icon_OfProgram().pixmap(QSize(logoPixels, logoPixels), devicePixelRatioF()));
    binder_->Bind(*logo, form_.imgLogo);
    return logo;
}

QWidget* AboutDialog::Info()
{
    auto* info = new QWidget(this);
    auto* column = new QVBoxLayout(info);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(panelRowGap);
    QLabel* version = BoundLabel(info, form_.lblVersion, *binder_);
    Enlarge(*version);
    column->addWidget(version);
    column->addWidget(BoundLabel(info, form_.lblCopyright, *binder_));
    auto* site = new QWidget(info);
    auto* row = PanelRow(*site);
    row->addWidget(BoundLabel(site, form_.lblWebSite, *binder_));
    row->addWidget(BoundLink(site, form_.ctlWebSite.lblHyperLink, *binder_));
    row->addStretch();
    binder_->Bind(*site, form_.ctlWebSite);
    column->addWidget(site);
    column->addSpacing(dialogGap);
    column->addWidget(InfoText(form_.txtInfo, *binder_, info), 1);
    binder_->Bind(*info, form_.picInfo);
    return info;
}

} // namespace tavo
