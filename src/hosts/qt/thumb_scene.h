#pragma once

#include "toolkit/panels.h"

#include <QColor>
#include <QFont>
#include <QPixmap>
#include <QRectF>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

class QPainter;
class QPalette;

namespace tavo {

class Binder;
class CaptionCuts;

// One thing to be seen in a picture box, as its control stood when asked.
struct SceneItem {
    enum class Kind { Frame, Picture, Caption } What = Kind::Frame;
    QRectF Place; // pixels from the corner of the box
    std::int32_t Back = 0;
    std::int32_t Fore = 0; // of a frame its border's
    int Style = 0;         // of a frame its border's width, of a caption its alignment
    PictureRef Picture;
    std::string Text;
    friend bool operator==(const SceneItem&, const SceneItem&) = default;
};

using Scene = std::vector<SceneItem>;

// What lies in the box and can be seen, in the order of painting: frames, then
// pictures, then captions. Controls that have a widget are left out.
Scene Scene_Of(const PictureBox& box, const Binder& binder);

// The place of a control in the box that holds it, in pixels.
QRectF Place_InBox(const Control& control, const PictureBox& box);

// Paints items; what it needs for several of them it prepares once.
class ScenePainter {
public:
    ScenePainter(QPainter& painter, const QPalette& palette, const QFont& font,
                 CaptionCuts& captions);

    void Paint(const SceneItem& item);

private:
    void Frame(const SceneItem& item);
    void Picture(const SceneItem& item);
    void Caption(const SceneItem& item);
    void FitFont(int heightPixels);
    const QPixmap& Icon(char letter, const QSize& size);
    void LayPlate(const QRect& dots);

    QPainter& painter_;
    const QPalette& palette_;
    QFont font_;
    CaptionCuts& captions_;
    int fittedHeight_ = 0;
    qreal scale_;   // dots to a pixel
    QColor ground_; // of the last frame; those of a box are alike
    std::map<char, QPixmap> icons_;
};

} // namespace tavo
