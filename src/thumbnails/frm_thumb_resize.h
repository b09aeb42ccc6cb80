#pragma once

#include "toolkit/form.h"
#include "toolkit/panels.h"

namespace tavo {

class Program;

// Brings the pictures of ThumbBuffer to the size of the look, when it has come
// to the front; then it is gone. It draws what is in memory anew and goes back
// to no file, so larger pictures are soft until they are made again.
class FrmThumbResize : public Form {
public:
    explicit FrmThumbResize(Program& p);

    PictureBox picResizeWin{*this, "picResizeWin"};
    Frame fraResize{*this, "fraResize"};
    ProgressBar prbResize{*this, "prbResize"}; // percent
    Label lblResize{*this, "lblResize"};
    // Where a picture is taken from and drawn at another size
    ImageBox imgOriginal{*this, "imgOriginal"};
    PictureBox picThumb{*this, "picThumb"};

private:
    void Design();
    void ResizeAll();
    void ResizeSlot(std::size_t slot);

    Program& p_;
};

} // namespace tavo
