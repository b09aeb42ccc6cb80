#pragma once

#include "controls/hyper_link.h"
#include "toolkit/buttons.h"
#include "toolkit/form.h"
#include "toolkit/panels.h"
#include "toolkit/text_box.h"

namespace tavo {

class Program;

// What this program is: logo, version, copyright, a text, and the web site.
class FrmAbout : public Form {
public:
    explicit FrmAbout(Program& p);

    ImageBox imgLogo{*this, "imgLogo"}; // the host draws the program's icon in it
    PictureBox picInfo{*this, "picInfo"};
    Label lblVersion{*this, "lblVersion"}, lblCopyright{*this, "lblCopyright"};
    Label lblWebSite{*this, "lblWebSite"};
    HyperLink ctlWebSite;
    TextBox txtInfo{*this, "txtInfo"};
    CommandButton cmdClose{*this, "cmdClose"};

private:
    friend void About_Show(Program& p, Form& owner);
    void Design();
    void Open();

    Program& p_;
    Form* owner_ = nullptr;
};

// Shows it modally in the middle of its owner.
void About_Show(Program& p, Form& owner);

} // namespace tavo
