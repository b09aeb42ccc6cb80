#pragma once

#include "hosts/qt/binder.h"
#include "hosts/qt/parts.h"

#include <QLineEdit>

class QBoxLayout;
class QGridLayout;
class QHBoxLayout;

namespace tavo {

// Room between the rows of a panel, and between groups of one row.
inline constexpr int panelRowGap = 6, panelGroupGap = 18;

// A widget that shows this control.
template <class Widget, class Kind>
Widget* Bound(QWidget* parent, Kind& control, Binder& binder)
{
    auto* widget = new Widget(parent);
    binder.Bind(*widget, control);
    return widget;
}

// A box as wide as a text of the kind that it is for, in any font.
class FittedBox : public QLineEdit {
    Q_OBJECT

public:
    FittedBox(const QString& sample, QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

private:
    QString sample_;
};

FittedBox* BoundBox(QWidget* parent, TextBox& box, Binder& binder, const QString& sample);
// With the widget that it is the caption of, if there is one.
QLabel* BoundLabel(QWidget* parent, Label& label, Binder& binder, QWidget* buddy = nullptr);
LinkButton* BoundLink(QWidget* parent, Label& label, Binder& binder, int padding = 0);
// Takes the width that it is given, however long its entries are.
QComboBox* BoundCombo(QWidget* parent, ComboBox& box, Binder& binder);

// Layouts without margins of their own, for what stands within a panel.
QHBoxLayout* PanelRow(QWidget& holder);
QGridLayout* PanelGrid(QWidget& holder);
// Room between two groups that a narrow window may take.
void AddGap(QBoxLayout& row);
// What is in the widget's place stays where it is while the widget is hidden.
void KeepRoom(QWidget& widget);
// A panel that has nothing but this frame, in its middle.
QWidget* CentredPanel(QWidget* frame, QWidget* parent);

} // namespace tavo
