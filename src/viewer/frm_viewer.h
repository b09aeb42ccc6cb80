#pragma once

#include "toolkit/buttons.h"
#include "toolkit/form.h"
#include "toolkit/panels.h"
#include "toolkit/scroll_bar.h"
#include "toolkit/tool_bars.h"

#include <string>

namespace tavo {

class Program;

// The image viewer: walks the rows of the rename list, one picture at a time.
// The position in the list is the value of hsbCurImage, and nothing else holds
// it. While the main window lives the viewer hides when it is closed.
class FrmViewer : public Form {
public:
    explicit FrmViewer(Program& p);

    ToolBars atbView{*this, "atbView"};
    // In pixels; it holds the picture, its preview and the drawing surface
    PictureBox picViewWin{*this, "picViewWin"};
    ImageBox imgOriginal{*this, "imgOriginal"};
    // The preview while the position bar is dragged
    PictureButton cmdThumb{*this, "cmdThumb"};
    // Pan the picture
    ScrollBar vsbImage{*this, "vsbImage"}, hsbImage{*this, "hsbImage"};
    ScrollBar hsbCurImage{*this, "hsbCurImage"};
    StatusBar stbMain{*this, "stbMain", 2};
    // The surface on which a thumbnail is drawn
    PictureBox picThumbMake{*this, "picThumbMake"};
    Timer tmrAutoShow{*this, "tmrAutoShow"}, tmrHideThumb{*this, "tmrHideThumb"};

    // The file that stands in the view; empty for none.
    std::string ShownFile;
    // The left button went down on the picture and is still held.
    bool Panning = false;

private:
    void Design(Program& p);
    void Wire(Program& p);
    void WireTools(Program& p);
};

// The pointer over the picture: by the ways in which it can be panned.
enum PanPointer { pointerDefault = 0, pointerAll = 5, pointerUpDown = 7, pointerLeftRight = 9 };

// The viewer if it has been made, in sight or not; else null.
FrmViewer* Viewer_Find(const Program& p);

// -- Display (viewer_display.cpp). All of them do nothing while there is no
// viewer.

// The change of hsbCurImage: loads and shows the row of that position. A file
// that is no picture shows its icon.
void Viewer_Show_Current(Program& p);
// Sizes and places the picture in the view, and sets up the pan bars.
void Viewer_Fit(Program& p);
// Shares the window out, and fits the picture anew.
void Viewer_Layout(Program& p);

// -- Commands (viewer_commands.cpp).

// Brings the viewer up on this row (from 1), or the one that is up to it.
void Viewer_Open(Program& p, int row);
// Moves the viewer that is there to this row; a row that is none leaves it.
void Viewer_Move(Program& p, int row);
// Fits the window's controls to the list, and shows the row of its position.
void Viewer_Sync(Program& p);
// Moves to the next row whose type is one of pictures, round the end of the
// list; stays where there is no other.
void Viewer_Image_Find(Program& p, bool forward);
// Puts the viewer out of sight, and lets its picture go.
void Viewer_Hide(Program& p);

// -- Thumbnails (viewer_thumbs.cpp).

// Makes the thumbnail of the row shown, where AutoThumbs says so and it has
// none. Not while a long operation is under way: that may be filling the buffer
// itself.
void Viewer_Thumb_Make(Program& p, int row);

// What the viewer hears of the list.
void Viewer_Wire(Program& p);

} // namespace tavo
