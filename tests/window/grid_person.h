#pragma once

#include "window/person.h"

#include <QColor>
#include <QImage>

namespace tavo {

// A person on the thumbnail view of pictures `p01.png`, `p02.png` and so on,
// each of one colour. Every third one is a JPEG and called so.
class GridPerson : public Person {
public:
    // `create` answers the offer to make the thumbnails.
    GridPerson(std::string_view test, int count, bool create = true);

    // To the view by its button, with the offer answered.
    void ShowGrid(bool create);
    // Away from it and back, with the offer taken.
    void ShowGridAgain();
    // What a delayed layout would do by itself a moment later.
    void LayOut();

    QWidget& Page() { return Of<QWidget>("picThumbnails"); }
    QWidget& Grid() { return Of<QWidget>("picThumbs"); }
    Control& Cell(int cell) { return Main().imgThumbs[cell]; }
    // Pixels of the page: a share of the control's width and height.
    QPoint PlaceOn(const Control& control, double across = 0.5, double down = 0.5);

    void ClickOn(const Control& control, Qt::KeyboardModifiers held = {},
                 Qt::MouseButton button = Qt::LeftButton);
    // From the middle of one to a place in another, in three steps, with the
    // button still down.
    void DragTo(const Control& from, const Control& to, double across = 0.5);
    void Drop(const Control& to, double across = 0.5);
    void Move(const QPoint& to);

    // The dot at the middle of a control, as the screen shows it.
    QColor Shown(const Control& control, double across = 0.5, double down = 0.5);
    static QColor Colour_Of(int number);
    // The numbers of the pictures in the order of the list: "1 2 3".
    std::string Order();
    std::string Picked();
};

} // namespace tavo
