#include "bare_disk.h"
#include "hosts/pictures/image_bitmap.h"
#include "hosts/pictures/picture_reader.h"
#include "photos.h"
#include "stand.h"
#include "thumbnails/thumb_grid.h"
#include "viewer/frm_viewer.h"
#include "work.h"

#include <QImageReader>
#include <QString>

#include <sched.h>

namespace tavo::bench {

namespace {

constexpr double msPerSecond = 1000;

// Decoders and scalers share their work among the cores; here all have one.
class OneCore {
public:
    OneCore()
    {
        sched_getaffinity(0, sizeof before_, &before_);
        int core = 0;
        while (!CPU_ISSET(core, &before_))
            ++core;
        cpu_set_t one;
        CPU_ZERO(&one);
        CPU_SET(core, &one);
        Require(sched_setaffinity(0, sizeof one, &one) == 0, "cannot keep to one core");
    }
    ~OneCore() { sched_setaffinity(0, sizeof before_, &before_); }
    OneCore(const OneCore&) = delete;
    OneCore& operator=(const OneCore&) = delete;

private:
    cpu_set_t before_;
};

// The program with a folder of photos in its rename list.
class PhotoStand {
public:
    PhotoStand(const Plan& plan, const std::vector<QSize>& sizes, int count)
        : folder_(plan.Folder + "photos/"), stand_(plan.Folder)
    {
        Folder_Make(folder_);
        paths_ = Photos_Make(folder_, sizes, count);
        stand_.Screen().Load = [](const std::string& path, Desktop::PictureBound bound) {
            return pictures::Bitmap_Load(path, bound.WidthPixels, bound.HeightPixels);
        };
        stand_.Screen().Paint = [](const Bitmap& picture, int width, int height) {
            return pictures::Bitmap_Paint(picture, width, height);
        };
        stand_.Load(folder_);
        Require(stand_.Renames.Count() == count, "not all photos were loaded");
    }
    ~PhotoStand() { Folder_Remove(folder_); }
    PhotoStand(const PhotoStand&) = delete;
    PhotoStand& operator=(const PhotoStand&) = delete;

    Program& P() { return stand_.P; }
    const std::vector<std::string>& Paths() const { return paths_; }

private:
    std::string folder_;
    Stand stand_;
    std::vector<std::string> paths_;
};

// What the decoder does by itself: the picture, or exactly an eighth of it,
// which it makes without ever having the whole.
void Bare_Decode(const std::string& path, int share)
{
    QImageReader reader(QString::fromStdString(path));
    const QSize size = reader.size() / share;
    if (share > 1)
        reader.setScaledSize(size);
    Require(reader.read().size() == size, "a photo was not decoded");
}

int Thumbs_Count(const Program& p)
{
    int count = 0;
    for (const BitmapPtr& picture : p.state.ThumbBuffer)
        count += picture != nullptr ? 1 : 0;
    return count;
}

void Thumbs_Measure(Plan& plan)
{
    constexpr int photos = 40;
    const std::string work = "thumbnails of 40 photos, against decoding an eighth";
    const std::string memory = "memory of a thumbnail, against its dots";
    if (!plan.Wants(work) && !plan.Wants(memory))
        return;
    Note(work);
    PhotoStand stand(plan, Photo_Sizes(), photos);
    Program& p = stand.P();
    const Pair pair = Measure(plan, {[&] { Thumb_Clear(p); }, [&] { Thumb_Create(p, true); }},
                              {{}, [&] {
                                   for (const std::string& path : stand.Paths())
                                       Bare_Decode(path, 8);
                               }});
    Require(Thumbs_Count(p) == photos, "not all thumbnails were made");
    plan.Results.push_back({work, pair.Tavo * msPerSecond, pair.Limit * msPerSecond, "ms", 1.15});

    double dots = 0;
    for (const BitmapPtr& picture : p.state.ThumbBuffer)
        dots += picture != nullptr ? 4.0 * picture->Width() * picture->Height() : 0;
    Thumb_Clear(p);
    const double before = HeapBytes();
    Thumb_Create(p, true);
    const double held = HeapBytes() - before;
    plan.Results.push_back({memory, held / photos, dots / photos, "B", 1.1});
}

// The picture as the viewer's window shows it: read, and drawn at its size.
void Viewer_Show(Program& p, int row)
{
    Viewer_Open(p, row);
    const FrmViewer& viewer = p.Viewer();
    const PictureRef& picture = viewer.imgOriginal.Picture;
    Require(picture.WidthPixels == largestPhoto.width(), "the viewer shows no photo");
    const int width = static_cast<int>(viewer.imgOriginal.Width);
    Require(viewer.imgOriginal.Stretch && width > 0 && width < picture.WidthPixels,
            "the viewer does not shrink");
    Require(
        p.desktop.PaintPicture(*picture.Dots, width, static_cast<int>(viewer.imgOriginal.Height))
            != nullptr,
        "the photo was not drawn");
}

void Viewer_Measure(Plan& plan)
{
    const std::string work = "viewer on 24 megapixels, against decoding them";
    if (!plan.Wants(work))
        return;
    Note(work);
    PhotoStand stand(plan, {largestPhoto}, 2);
    Program& p = stand.P();
    p.state.ViewShrink = true;
    // By turns, for what is in the view is not read again.
    int shown = 0, decoded = 0;
    const Pair pair = Measure(
        plan, {{}, [&] { Viewer_Show(p, 1 + shown++ % 2); }},
        {{}, [&] { Bare_Decode(stand.Paths()[static_cast<std::size_t>(decoded++ % 2)], 1); }});
    plan.Results.push_back({work, pair.Tavo * msPerSecond, pair.Limit * msPerSecond, "ms", 1.3});
}

} // namespace

void Pictures_Measure(Plan& plan)
{
    const OneCore oneCore;
    Thumbs_Measure(plan);
    Viewer_Measure(plan);
}

} // namespace tavo::bench
