#include "core/frm_main.h"
#include "hosts/qt/mode_panel_makers.h"
#include "hosts/qt/panel_parts.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QGridLayout>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>

namespace tavo {

namespace {

enum MoveColumn { moveOptions, moveGap, moveLabels, moveBoxes, moveBrowse };

// No wider than it is high, but for its text.
class BrowseButton : public QPushButton {
public:
    using QPushButton::QPushButton;

    QSize sizeHint() const override
    {
        const int height = QPushButton::sizeHint().height();
        const int text = fontMetrics().horizontalAdvance(this->text());
        return {std::max(height, text + 2 * fontMetrics().averageCharWidth()), height};
    }
};

} // namespace

QWidget* MoveCopy_Panel(FrmMain& form, Binder& binder, QWidget* parent)
{
    auto* panel = new QWidget(parent);
    auto* column = new QVBoxLayout(panel);
    auto* rows = new QWidget(panel);
    auto* grid = PanelGrid(*rows);
    for (const auto& option : form.optmcdMode)
        grid->addWidget(Bound<QRadioButton>(rows, *option, binder), option->Index() - 1,
                        moveOptions);
    grid->setColumnMinimumWidth(moveGap, panelRowGap);
    auto* path = Bound<QLineEdit>(rows, form.txtmcdPath, binder);
    auto* browse = Bound<BrowseButton>(rows, form.cmdmcdPath, binder);
    auto* favorites = BoundCombo(rows, form.cbomcdPath, binder);
    browse->setAutoDefault(false);
    browse->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    grid->addWidget(BoundLabel(rows, form.lblmcd[0], binder, path), 0, moveLabels);
    grid->addWidget(path, 0, moveBoxes);
    grid->addWidget(browse, 0, moveBrowse);
    grid->addWidget(BoundLabel(rows, form.lblmcd[1], binder, favorites), 1, moveLabels);
    grid->addWidget(favorites, 1, moveBoxes, 1, 2);
    grid->setColumnStretch(moveBoxes, 1);
    column->addWidget(rows);
    column->addStretch();
    return panel;
}

} // namespace tavo
