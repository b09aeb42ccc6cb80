#pragma once

#include "thumbnails/thumb_look.h"
#include "toolkit/buttons.h"
#include "toolkit/control_array.h"
#include "toolkit/form.h"
#include "toolkit/panels.h"
#include "toolkit/tool_bars.h"

#include <string>

namespace tavo {

class Program;

// Edits a look of the thumbnails with a preview: the look in force as the
// "Thumbnail Editor", the record in SchemeEditText as the "Scheme Editor".
// SchemeEditMode tells which, at the moment it opens. Nothing outside is
// touched before OK.
class FrmThumbEditor : public Form {
public:
    explicit FrmThumbEditor(Program& p);

    ToolBars atbThumbs{*this, "atbThumbs"};
    // The preview, in pixels
    PictureBox picPreview{*this, "picPreview"};
    Shape shpPreview{*this, "shpPreview"};
    ImageBox imgPreview{*this, "imgPreview"}; // stretched to the picture's box
    Label lblPreview{*this, "lblPreview"};
    // Never seen
    ImageBox imgOriginal{*this, "imgOriginal"};
    PictureBox picThumb{*this, "picThumb"};
    // The colours, by ThumbColor: a click on a chip chooses one, a click on its
    // label puts it back to the built-in one
    Frame fraColor{*this, "fraColor"};
    ControlArray<PictureBox> picColor{*this, "picColor", 0, 5};
    ControlArray<Label> lblColor{*this, "lblColor", 0, 5};
    CommandButton cmdOk{*this, "cmdOk"}, cmdCancel{*this, "cmdCancel"};

    // The look as edited so far.
    ThumbLook Work;
    // It edits a record, not the look in force.
    bool OnScheme = false;
    // Which border the preview shows.
    bool ShowNormal = false;

private:
    void Design(Program& p);
    void DesignColors();
    void Wire(Program& p);
    void WireTools(Program& p);
};

// Shows it modally in the mode that SchemeEditMode tells. Does nothing while it
// is up already: the settings, which can be opened from it, lead back to it.
void Thumb_Editor_Show(Program& p);

// -- With the form in hand (thumb_editor_look.cpp)

// Takes a scheme record as it stands: sizes that cannot be typed are kept.
void Thumb_Editor_Load(FrmThumbEditor& f, const std::string& record);
// Paints the preview and the labels of the borders anew.
void Thumb_Editor_Preview(FrmThumbEditor& f);
// The look as edited so far as a scheme record.
std::string Thumb_Editor_Record(const FrmThumbEditor& f);
// Holds the number in the tool's box to these bounds.
void Thumb_Field_Clamp(Tool& tool, int min, int max);

} // namespace tavo
