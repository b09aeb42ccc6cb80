#include "core/frm_main.h"
#include "core/layout.h"
#include "core/program.h"
#include "thumbnails/frm_thumb_editor.h"
#include "thumbnails/thumb_cells.h"
#include "thumbnails/thumb_grid.h"

namespace tavo {

void Thumb_Layout_Edit(Program& p)
{
    p.state.SchemeEditMode = false;
    Thumb_Editor_Show(p);
    p.main.Refresh();
    Thumb_Side_Fit(p);
    Thumb_Colors_Apply(p);
    if (!Thumbs_Shown(p))
        return;
    Thumb_Layout(p);
    Main_Layout(p);
}

} // namespace tavo
