#pragma once

#include "window/person.h"

#include "hosts/qt/picture_view.h"
#include "viewer/frm_viewer.h"

#include <QColor>
#include <QImage>
#include <QLabel>
#include <QScrollBar>
#include <QStatusBar>
#include <QStyle>
#include <QToolButton>

namespace tavo {

// The left half of the pictures, and the right one.
inline constexpr QColor paper(200, 30, 30), ink(30, 30, 200);

QImage Halves(int width, int height);
std::string Bmp(const QImage& image);

// A person with the viewer: a small picture, a large one, a text, another
// small picture.
class ViewerPerson : public Person {
public:
    explicit ViewerPerson(std::string_view test, const std::vector<std::string>& files = {
                                                     "a.bmp", "b.bmp", "c.txt", "d.bmp"});

    FrmViewer& Form() { return Running().Viewer(); }
    ViewerWindow& Shown() { return *Tavo().Viewer(); }
    template <class Widget = QWidget>
    Widget& In(const std::string& name)
    {
        auto* widget = Shown().findChild<Widget*>(QString::fromStdString(name));
        if (!widget)
            qFatal("no widget %s in the viewer", name.c_str());
        return *widget;
    }
    PictureView& View() { return In<PictureView>("picViewWin"); }

    void Open(int row)
    {
        Viewer_Open(Running(), row);
        Wait();
    }
    // Until what the program has changed is shown.
    void Wait();
    QToolButton& Button(const std::string& id);
    void Press(const std::string& id)
    {
        QTest::mouseClick(&Button(id), Qt::LeftButton);
        Wait();
    }
    void Key(Qt::Key key)
    {
        QTest::keyClick(Shown().focusWidget(), key);
        Wait();
    }
    void Resize(int width, int height)
    {
        Shown().resize(width, height);
        Wait();
    }
    QString Panel(int number)
    {
        return Shown().statusBar()->findChildren<QLabel*>().at(number - 1)->text();
    }
    // Where the picture is in the view.
    QRect Image();
    // The colour painted at a place of the view.
    QColor At(const QPoint& place) { return View().grab().toImage().pixelColor(place); }
    QColor Middle(double share)
    {
        return At(Image().topLeft()
                  + QPoint(static_cast<int>(Image().width() * share), Image().height() / 2));
    }
    // The middle of a part of the bar.
    QPoint Part(QScrollBar& bar, QStyle::SubControl part);
    void ClickPart(QScrollBar& bar, QStyle::SubControl part)
    {
        QTest::mouseClick(&bar, Qt::LeftButton, {}, Part(bar, part));
        Wait();
    }
};

} // namespace tavo
