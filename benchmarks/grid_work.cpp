#include "core/screens.h"
#include "core/tools.h"
#include "hosts/pictures/image_bitmap.h"
#include "hosts/qt/qt_host.h"
#include "hosts/qt/thumb_canvas.h"
#include "stand.h"
#include "thumbnails/thumb_grid.h"
#include "work.h"

#include <QApplication>
#include <QEvent>

#include <memory>

namespace tavo::bench {

namespace {

constexpr double msPerSecond = 1000;
constexpr int gridRows = 30'000, windowWidth = 1920, windowHeight = 1080;

// No two are alike, as no two photos are.
BitmapPtr Thumbnail_Make(int number)
{
    QImage image(80, 60, QImage::Format_RGB32);
    image.fill(0xff000000u | static_cast<unsigned>(number) * 2654435761u);
    return std::make_shared<pictures::ImageBitmap>(image, image.size());
}

void Thumbnails_Give(Program& p)
{
    p.state.ThumbBuffer.resize(gridRows + 1);
    for (int row = 1; row <= gridRows; ++row) {
        p.state.ThumbBuffer[static_cast<std::size_t>(row)] = Thumbnail_Make(row);
        p.main.lsvRename.SetTag(row, std::to_string(row));
    }
}

// Counts how often the grid is painted.
class PaintCounter : public QObject {
public:
    int Count = 0;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && dynamic_cast<ThumbCanvas*>(watched) != nullptr)
            ++Count;
        return false;
    }
};

// What the program has changed goes to the widgets, which is else done once a
// frame, and they paint it.
void Screen_Settle(QtHost& host)
{
    host.Window().Bound().Queue().Flush();
    QApplication::processEvents();
}

void Scroll_Measure(Plan& plan, const std::string& work)
{
    // On a screen in memory, so that what is painted is all painted here.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "*=false");
    char name[] = "tavo-bench";
    char* words[] = {name, nullptr};
    int count = 1;
    QApplication application(count, words);
    PaintCounter paints;
    application.installEventFilter(&paints);
    QtHost host({plan.Folder, plan.Folder});
    Require(host.Start(), "the window did not come up");
    Program& p = host.Running();
    Rows_Fill(p, gridRows);
    p.state.RenCount = gridRows;
    Thumbnails_Give(p);
    host.Window().resize(windowWidth, windowHeight);
    Screen_Settle(host);
    View_Set(p, viewThumbnails);
    Screen_Show(p, screenThumbnails, false);
    Thumb_Layout(p);
    Screen_Settle(host);
    ScrollBar& bar = p.main.vsbThumbs;
    constexpr int steps = 100;
    Note("  " + std::to_string(p.state.Cells) + " cells in sight");
    Require(p.state.Cells > 50 && bar.Max > 2 * steps, "the grid is not full");
    const double seconds = Measure(plan, {[&] {
                                              bar.Value = 1;
                                              Screen_Settle(host);
                                          },
                                          [&] {
                                              for (int step = 0; step < steps; ++step) {
                                                  bar.Value = bar.Value + 1;
                                                  Screen_Settle(host);
                                              }
                                          }});
    Require(bar.Value == 1 + steps, "the grid did not scroll");
    Require(paints.Count >= steps * plan.Repeats, "the grid was not painted");
    plan.Results.push_back({work, seconds / steps * msPerSecond, 0, "ms", 16});
}

} // namespace

void Grid_Measure(Plan& plan)
{
    const std::string work = "scroll of the grid by a line, 30,000 rows";
    if (!plan.Wants(work))
        return;
    Note(work);
    Scroll_Measure(plan, work);
}

} // namespace tavo::bench
