#include "window/viewer_person.h"

#include "hosts/qt/qt_text.h"

#include <QApplication>
#include <QBuffer>
#include <QStyleOptionSlider>

namespace tavo {

QImage Halves(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(paper);
    for (int y = 0; y < height; ++y)
        for (int x = width / 2; x < width; ++x)
            image.setPixelColor(x, y, ink);
    return image;
}

std::string Bmp(const QImage& image)
{
    QBuffer bytes;
    image.save(&bytes, "BMP");
    return bytes.data().toStdString();
}

ViewerPerson::ViewerPerson(std::string_view test, const std::vector<std::string>& files)
    : Person(test, files)
{
    for (const std::string& name : files)
        if (name.ends_with(".bmp"))
            Folder().Write("files/" + name,
                           Bmp(name[0] == 'b' ? Halves(2000, 1500) : Halves(64, 48)));
    RenameAllFiles();
}

void ViewerPerson::Wait()
{
    for (int turn = 0; turn < 3; ++turn) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        Window().Bound().Queue().Flush();
        if (Tavo().Viewer())
            Shown().Bound().Queue().Flush();
    }
}

QToolButton& ViewerPerson::Button(const std::string& id)
{
    for (QToolButton* button : Shown().findChildren<QToolButton*>())
        if (button->defaultAction() && button->defaultAction()->objectName() == ToQt(id))
            return *button;
    qFatal("no button for %s", id.c_str());
}

QPoint ViewerPerson::Part(QScrollBar& bar, QStyle::SubControl part)
{
    QStyleOptionSlider option;
    option.initFrom(&bar);
    option.minimum = bar.minimum();
    option.maximum = bar.maximum();
    option.singleStep = bar.singleStep();
    option.pageStep = bar.pageStep();
    option.sliderPosition = option.sliderValue = bar.value();
    option.orientation = bar.orientation();
    if (bar.orientation() == Qt::Horizontal)
        option.state |= QStyle::State_Horizontal;
    return bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, part, &bar).center();
}

QRect ViewerPerson::Image()
{
    const ImageBox& image = Form().imgOriginal;
    return QRectF(image.Left, image.Top, image.Width, image.Height).toRect();
}

} // namespace tavo
