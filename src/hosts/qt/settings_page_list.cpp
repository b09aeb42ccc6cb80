#include "hosts/qt/dialog_parts.h"
#include "hosts/qt/icons.h"
#include "hosts/qt/list_page.h"
#include "hosts/qt/qt_text.h"
#include "hosts/qt/settings_page.h"
#include "settings/frm_settings.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>

#include <algorithm>

namespace tavo {

namespace {

constexpr int leastRows = 9, leastChars = 56, nameChars = 24, insertGap = 4;

// The grid of the boxes: a label stands over its box.
enum FieldRow { nameLabel, nameBox, dataLabel, dataBox, underBoxes };

bool ActsOnClick(const Label& label)
{
    return label.Click.HasHandler();
}

// A label that does something is a link. Captions may change, and with them
// what the box is called.
QWidget* FieldLabel(Label& label, QWidget& box, Binder& binder, QWidget* parent)
{
    new Binding(binder.Queue(), box, label.Changed, [&](const PropSet& changed) {
        if (changed.Has({Prop::Caption}))
            box.setAccessibleName(Plain_Caption(label.Caption));
    });
    if (ActsOnClick(label))
        return BoundLink(parent, label, binder);
    return BoundLabel(parent, label, binder);
}

// Everything of one page; made once and left to its widgets.
class PageMaker {
public:
    PageMaker(FrmSettings& form, int page, Binder& binder, QWidget* parent)
        : form_(form), page_(page), binder_(binder), holder_(new QWidget(parent)),
          fields_(new QGridLayout)
    {
    }

    QWidget* Make()
    {
        auto* grid = new QGridLayout(holder_);
        grid->setContentsMargins(dialogMargin, dialogMargin, dialogMargin, dialogMargin);
        grid->setHorizontalSpacing(dialogGap);
        grid->setVerticalSpacing(dialogGap);
        grid->addWidget(List(), 0, 0);
        grid->addLayout(Column({&form_.cmdUp[page_], &form_.cmdDown[page_]}), 0, 1);
        AddFields();
        grid->addLayout(fields_, 1, 0);
        grid->addLayout(Column({&form_.cmdAdd[page_], &form_.cmdUpdate[page_],
                                &form_.cmdRemove[page_], &form_.cmdNew[page_]}),
                        1, 1);
        grid->setColumnStretch(0, 1);
        grid->setRowStretch(0, 1);
        Order_Mark();
        return holder_;
    }

private:
    QWidget* List()
    {
        ListView& list = form_.lsvSettings[page_];
        auto* shown = new ListPage(list, binder_, holder_);
        const QFontMetrics letters = shown->fontMetrics();
        shown->setMinimumSize(leastChars * letters.averageCharWidth(),
                              leastRows * letters.lineSpacing());
        shown->Details().setAccessibleName(ToQt(list.AccessibleName));
        QHeaderView& header = *shown->Details().horizontalHeader();
        header.resizeSection(
            0, std::max(header.sectionSize(0), nameChars * letters.averageCharWidth()));
        return shown;
    }

    QBoxLayout* Column(std::initializer_list<CommandButton*> commands)
    {
        auto* column = new QVBoxLayout;
        column->setSpacing(panelRowGap);
        for (CommandButton* command : commands)
            column->addWidget(DialogButton(holder_, *command, binder_));
        column->addStretch();
        return column;
    }

    void Order_Mark()
    {
        const auto mark = [this](const CommandButton& command, const char* icon) {
            qobject_cast<QPushButton*>(binder_.WidgetOf(&command))->setIcon(Icon_Named(icon));
        };
        mark(form_.cmdUp[page_], "go-up");
        mark(form_.cmdDown[page_], "go-down");
    }

    void AddFields()
    {
        fields_->setHorizontalSpacing(dialogGap);
        fields_->setVerticalSpacing(panelRowGap / 2);
        fields_->setRowStretch(underBoxes + 1, 1);
        fields_->setRowMinimumHeight(underBoxes, dialogGap);
        fields_->setColumnStretch(0, 1);
        const bool isTemplate = page_ == pageTemplates, isScheme = page_ == pageSchemes;
        const int data = isTemplate ? templateName : page_;
        AddBox(nameLabel, 0, isTemplate ? 1 : 2, form_.lblName[page_], form_.txtName[page_]);
        AddBox(dataLabel, 0, isTemplate || isScheme ? 1 : 2, form_.lblData[data],
               form_.txtData[data]);
        if (isTemplate)
            AddTemplate();
        if (isScheme)
            fields_->addWidget(DialogButton(holder_, form_.cmdEditScheme, binder_), dataBox, 1);
    }

    void AddBox(int row, int column, int columns, Label& label, TextBox& box)
    {
        auto* line = Bound<QLineEdit>(holder_, box, binder_);
        QWidget* text = FieldLabel(label, *line, binder_, holder_);
        fields_->addWidget(text, row, column, 1, columns, Qt::AlignLeft);
        fields_->addWidget(line, row + 1, column, 1, columns);
    }

    void AddTemplate()
    {
        AddBox(dataLabel, 1, 1, form_.lblData[templateExt], form_.txtData[templateExt]);
        QComboBox* mode = BoundCombo(holder_, form_.cboMode, binder_);
        fields_->addWidget(FieldLabel(form_.lblName[0], *mode, binder_, holder_), nameLabel, 1);
        fields_->addWidget(mode, nameBox, 1);
        fields_->setColumnStretch(1, 1);
        fields_->addLayout(Inserts(), underBoxes, 0, 1, 2);
    }

    QBoxLayout* Inserts()
    {
        auto* row = new QHBoxLayout;
        row->setContentsMargins(0, panelRowGap, 0, 0);
        row->setSpacing(insertGap);
        for (const auto& label : form_.lblTmpInsert) {
            if (ActsOnClick(*label))
                row->addWidget(BoundLink(holder_, *label, binder_, insertGap));
            else
                row->addWidget(BoundLabel(holder_, *label, binder_));
        }
        row->addStretch();
        return row;
    }

    FrmSettings& form_;
    int page_;
    Binder& binder_;
    QWidget* holder_;
    QGridLayout* fields_;
};

} // namespace

QWidget* ListSettings_Make(FrmSettings& form, int page, Binder& binder, QWidget* parent)
{
    return PageMaker(form, page, binder, parent).Make();
}

} // namespace tavo
