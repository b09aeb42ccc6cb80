#pragma once

#include <QWidget>

class QScrollBar;

namespace tavo {

class Binder;
class FrmSettings;

// The options under their headings, in a box that scrolls where they have no
// room. How far it is scrolled is the program's; the view tells it the sizes.
class OptionsView : public QWidget {
    Q_OBJECT

public:
    OptionsView(FrmSettings& form, Binder& binder, QWidget* parent);

    // All of them, without a scroll bar.
    QSize sizeHint() const override;
    bool eventFilter(QObject* object, QEvent* event) override;

protected:
    void wheelEvent(QWheelEvent* event) override;

private:
    void AddOptions(Binder& binder);
    void Fit();
    void Reveal(const QWidget& option);

    FrmSettings& form_;
    QWidget* box_;
    QWidget* options_;
    QScrollBar* bar_;
};

} // namespace tavo
