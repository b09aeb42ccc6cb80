#pragma once

#include "toolkit/panels.h"

#include <QAbstractButton>
#include <QLabel>
#include <QPixmap>
#include <QStatusBar>

namespace tavo {

class Binder;

// A thin bar to drag. It tells its label where the mouse is, in twips from the
// corner that the label has at that moment, which may be ahead of the widget.
class SplitBar : public QWidget {
    Q_OBJECT

public:
    SplitBar(Label& label, Qt::CursorShape cursor, Binder& binder, QWidget* parent);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    Control::Mouse At(const QMouseEvent& event) const;

    Label& label_;
};

// What a picture control shows.
class PicturePane : public QWidget {
    Q_OBJECT

public:
    PicturePane(PictureBox& picture, Binder& binder, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    PictureBox& picture_;
    QPixmap shown_;
};

// The status bar with its panels; a click on it is the control's.
class StatusPanels : public QStatusBar {
    Q_OBJECT

public:
    StatusPanels(StatusBar& bar, Binder& binder, QWidget* parent);

    // Stands in the middle panel until the program has something new to say
    // there; an empty tip ends the one before.
    void ShowTip(const QString& tip);

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void ShowTexts();

    StatusBar& bar_;
    std::vector<QLabel*> panels_;
    QString tip_;
    Connection panelChanged_;
};

// A panel that stands out by its edge.
class RaisedPane : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent* event) override;
};

// A text that does something when it is clicked: in the colour of accents, with
// a line under it while the pointer is there.
class LinkButton : public QAbstractButton {
    Q_OBJECT

public:
    // `padding` pixels stay free at both sides.
    LinkButton(int padding, QWidget* parent);

    QSize sizeHint() const override;
    // Where its size may shrink, its text is cut with dots.
    QSize minimumSizeHint() const override { return {2 * padding_, sizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int padding_;
};

} // namespace tavo
