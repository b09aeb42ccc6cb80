#pragma once

#include <QDialog>

#include <vector>

class QBoxLayout;

namespace tavo {

class BarView;
class Binder;
class FrmThumbEditor;
class PersonInput;
class ToolActions;

// The look of the thumbnails: a bar with the sizes, a preview, and the colours.
class EditorDialog : public QDialog {
    Q_OBJECT

public:
    EditorDialog(FrmThumbEditor& form, QWidget* owner);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void AddBars(QBoxLayout& column);
    QWidget* Colors();
    void TellColors();

    FrmThumbEditor& form_;
    Binder* binder_;
    ToolActions* actions_;
    QWidget* colors_ = nullptr;
    std::vector<BarView*> bars_;
};

} // namespace tavo
