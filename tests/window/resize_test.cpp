#include "window/person.h"

#include "hosts/qt/binder.h"
#include "thumbnails/frm_thumb_resize.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QBuffer>
#include <QImage>
#include <QLabel>
#include <QProgressBar>

namespace tavo {

namespace {

// A person with thumbnails of 80 x 60 in the buffer, behind the empty slot.
class ResizePerson : public Person {
public:
    ResizePerson(std::string_view test, int thumbnails) : Person(test, {"a.bmp"})
    {
        QImage image(80, 60, QImage::Format_RGB32);
        image.fill(Qt::blue);
        QBuffer bytes;
        image.save(&bytes, "BMP");
        Folder().Write("files/a.bmp", bytes.data().toStdString());
        auto& buffer = Running().state.ThumbBuffer;
        buffer.assign(1, nullptr);
        for (int i = 0; i < thumbnails; ++i)
            buffer.push_back(Running().desktop.LoadPicture(Folder().Path("files/a.bmp"), {}));
        Running().state.ThumbLook.Width = Running().state.ThumbLook.Height = 40;
    }
};

} // namespace

TEST(WindowResize, The_dialog_does_its_work_and_goes)
{
    ResizePerson p("window_resize", 3);
    FrmThumbResize& form = p.Running().ThumbResize();
    std::vector<std::string> seen;
    const auto watch = form.prbResize.Changed.Listen([&](Prop) {
        const QWidget* dialog = QApplication::activeModalWidget();
        seen.push_back((dialog && dialog->isVisible() ? "up " : "hidden ")
                       + *form.prbResize.PropertyText("Value"));
    });
    p.Running().desktop.ShowModal(form);
    EXPECT_EQ(seen, (std::vector<std::string>{"up 33", "up 67", "up 100"}));
    EXPECT_FALSE(form.Loaded());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    const auto& buffer = p.Running().state.ThumbBuffer;
    ASSERT_EQ(buffer.size(), 4U);
    EXPECT_EQ(buffer[0], nullptr);
    for (std::size_t slot = 1; slot < buffer.size(); ++slot) {
        EXPECT_EQ(buffer[slot]->Width(), 40) << slot;
        EXPECT_EQ(buffer[slot]->Height(), 30) << slot;
    }
}

TEST(WindowResize, With_nothing_to_do_it_goes_at_once)
{
    ResizePerson p("window_resize_none", 0);
    p.Running().desktop.ShowModal(p.Running().ThumbResize());
    EXPECT_FALSE(p.Running().ThumbResize().Loaded());
    EXPECT_EQ(p.Running().state.ThumbBuffer.size(), 1U);
}

TEST(WindowResize, It_shows_how_far_it_has_come)
{
    ResizePerson p("window_resize_shown", 0);
    FrmThumbResize& form = p.Running().ThumbResize();
    form.Activate = nullptr;
    QString text;
    int value = 0, maximum = 0;
    bool inside = false;
    p.InNextDialog([&](QWidget& dialog) {
        form.prbResize.Value = 40;
        dialog.findChild<Binder*>()->Queue().Flush();
        auto& bar = *dialog.findChild<QProgressBar*>();
        text = dialog.findChild<QLabel*>()->text();
        value = bar.value();
        maximum = bar.maximum();
        inside = dialog.rect().contains(bar.geometry());
        form.PersonClose();
    });
    p.Running().desktop.ShowModal(form);
    EXPECT_EQ(text, "Resizing Existing Thumbnails...");
    EXPECT_EQ(value * 100, 40 * maximum);
    EXPECT_TRUE(inside);
}

} // namespace tavo
