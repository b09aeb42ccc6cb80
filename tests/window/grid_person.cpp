#include "window/grid_person.h"

#include <QApplication>
#include <QMouseEvent>

#include <cstdio>

namespace tavo {

namespace {

std::string Name_Of(int number)
{
    char name[16];
    std::snprintf(name, sizeof name, "p%02d.%s", number, number % 3 == 0 ? "jpg" : "png");
    return name;
}

std::vector<std::string> Names_UpTo(int count)
{
    std::vector<std::string> names;
    for (int number = 1; number <= count; ++number)
        names.push_back(Name_Of(number));
    return names;
}

} // namespace

GridPerson::GridPerson(std::string_view test, int count, bool create)
    : Person(test, Names_UpTo(count))
{
    for (int number = 1; number <= count; ++number) {
        QImage picture(60, 40, QImage::Format_RGB32);
        picture.fill(Colour_Of(number));
        const std::string path = Folder().Path("files/" + Name_Of(number));
        if (!picture.save(QString::fromStdString(path), nullptr, 100))
            qFatal("cannot write %s", path.c_str());
    }
    Window().resize(900, 700);
    Settle();
    RenameAllFiles();
    ShowGrid(create);
}

void GridPerson::ShowGrid(bool create)
{
    AnswerNext(create ? "OK" : "Cancel");
    Press("ID_Views");
    LayOut();
}

void GridPerson::ShowGridAgain()
{
    Press("ID_Views");
    ShowGrid(true);
}

void GridPerson::LayOut()
{
    Settle();
    if (Main().tmrRedrawThumbs.Enabled)
        Main().tmrRedrawThumbs.Tick();
    Settle();
}

QPoint GridPerson::PlaceOn(const Control& control, double across, double down)
{
    double x = across * control.Width, y = down * control.Height;
    for (const Control* at = &control; at != &Main().picThumbnails; at = at->Container) {
        const double unit = at->Container->UnitTwips() / twipsPerPixel;
        x = (at == &control ? x * unit : x) + at->Left * unit;
        y = (at == &control ? y * unit : y) + at->Top * unit;
    }
    return {static_cast<int>(x), static_cast<int>(y)};
}

void GridPerson::ClickOn(const Control& control, Qt::KeyboardModifiers held, Qt::MouseButton button)
{
    QTest::mouseClick(&Page(), button, held, PlaceOn(control));
    Settle();
}

// QTest's own move forgets the button.
void GridPerson::Move(const QPoint& to)
{
    QMouseEvent move(QEvent::MouseMove, to, Page().mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&Page(), &move);
    Settle();
}

void GridPerson::DragTo(const Control& from, const Control& to, double across)
{
    const QPoint begin = PlaceOn(from), end = PlaceOn(to, across);
    QTest::mousePress(&Page(), Qt::LeftButton, {}, begin);
    for (const QPoint& place : {begin + QPoint(6, 6), (begin + end) / 2, end})
        Move(place);
}

void GridPerson::Drop(const Control& to, double across)
{
    QTest::mouseRelease(&Page(), Qt::LeftButton, {}, PlaceOn(to, across));
    Settle();
}

QColor GridPerson::Shown(const Control& control, double across, double down)
{
    Settle();
    return Page().grab().toImage().pixelColor(PlaceOn(control, across, down)
                                              * Page().devicePixelRatio());
}

QColor GridPerson::Colour_Of(int number)
{
    return QColor::fromHsv(number * 47 % 360, 200, 120 + number * 31 % 120);
}

std::string GridPerson::Order()
{
    std::string order;
    for (const std::string& name : Names(Main().lsvRename))
        order += (order.empty() ? "" : " ") + std::to_string(std::stoi(name.substr(1)));
    return order;
}

std::string GridPerson::Picked()
{
    std::string rows;
    for (const int row : Selected(Main().lsvRename))
        rows += (rows.empty() ? "" : " ") + std::to_string(row);
    return rows;
}

} // namespace tavo
