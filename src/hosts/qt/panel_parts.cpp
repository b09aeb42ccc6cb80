#include "hosts/qt/panel_parts.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>

namespace tavo {

namespace {

constexpr int comboLeastChars = 10;

} // namespace

FittedBox::FittedBox(const QString& sample, QWidget* parent) : QLineEdit(parent), sample_(sample)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize FittedBox::sizeHint() const
{
    const QFontMetrics letters = fontMetrics();
    const int rims = 2 * letters.averageCharWidth();
    return {letters.horizontalAdvance(sample_) + rims, QLineEdit::sizeHint().height()};
}

FittedBox* BoundBox(QWidget* parent, TextBox& box, Binder& binder, const QString& sample)
{
    auto* line = new FittedBox(sample, parent);
    binder.Bind(*line, box);
    return line;
}

QLabel* BoundLabel(QWidget* parent, Label& label, Binder& binder, QWidget* buddy)
{
    auto* text = new QLabel(parent);
    text->setBuddy(buddy);
    binder.Bind(*text, label);
    return text;
}

LinkButton* BoundLink(QWidget* parent, Label& label, Binder& binder, int padding)
{
    auto* link = new LinkButton(padding, parent);
    binder.Bind(*link, label);
    return link;
}

QComboBox* BoundCombo(QWidget* parent, ComboBox& box, Binder& binder)
{
    auto* combo = new QComboBox(parent);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(comboLeastChars);
    binder.Bind(*combo, box);
    return combo;
}

QHBoxLayout* PanelRow(QWidget& holder)
{
    auto* row = new QHBoxLayout(&holder);
    row->setContentsMargins(0, 0, 0, 0);
    return row;
}

QGridLayout* PanelGrid(QWidget& holder)
{
    auto* grid = new QGridLayout(&holder);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(panelRowGap);
    return grid;
}

void AddGap(QBoxLayout& row)
{
    row.addSpacerItem(
        new QSpacerItem(panelGroupGap, 0, QSizePolicy::Maximum, QSizePolicy::Minimum));
}

void KeepRoom(QWidget& widget)
{
    QSizePolicy policy = widget.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(policy);
}

QWidget* CentredPanel(QWidget* frame, QWidget* parent)
{
    auto* panel = new QWidget(parent);
    auto* row = new QHBoxLayout(panel);
    row->addStretch();
    row->addWidget(frame);
    row->addStretch();
    return panel;
}

} // namespace tavo
