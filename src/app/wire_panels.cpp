#include "app/wire_panels.h"

#include "app/folder_line.h"
#include "card/chooser_events.h"
#include "card/chooser_keys.h"
#include "card/chooser_layout.h"
#include "card/chooser_menu.h"
#include "form/run_procedure.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "help/help_page.h"
#include "view/color_panel.h"
#include "view/color_panel_layout.h"

namespace zev {
namespace {

void wireChooser(Zevlin& form) {
    form.LSaveAs.MouseDown = run(form, LSaveAs_MouseDown);
    form.TSaveAs.Change = run(form, TSaveAs_Change);
    form.TSaveAs.GotFocus = run(form, TSaveAs_GotFocus);
    form.TSaveAs.KeyDown = run(form, TSaveAs_KeyDown);
    form.TSaveAs.KeyPress = run(form, TSaveAs_KeyPress);
    form.FileList.Click = run(form, FileList_Click);
    form.FileList.DblClick = run(form, FileList_DblClick);
    form.FileList.KeyDown = run(form, FileList_KeyDown);
    form.FileList.KeyPress = run(form, FileList_KeyPress);
    form.FileList.MouseDown = run(form, FileList_MouseDown);
    form.LPath.MouseDown = run(form, LPath_MouseDown);
    form.BOK.Caption = "&OK";
    form.BOK.Default = true;
    form.BOK.Click = run(form, BOK_Click);
    form.BCancel.Caption = "&Cancel";
    form.BCancel.Cancel = true;
    form.BCancel.Click = run(form, BCancel_Click);
}

toolkit::PanelContents chooser(Zevlin& form) {
    wireChooser(form);
    form.P3.AccessibleName = "Choose a card";
    form.TSaveAs.AccessibleName = "Name of the card";
    form.FileList.AccessibleName = "Cards";
    form.FileList.Elides = true;
    toolkit::PanelContents panel;
    panel.box = &form.P3;
    panel.labels = {&form.LSaveAs, &form.LPath};
    panel.controls = {&form.TSaveAs, &form.FileList, &form.BOK, &form.BCancel};
    return panel;
}

void wireColorPanel(Zevlin& form) {
    for (int i = 0; auto& number : form.ColorID)
        number.Click = [&form, index = i++] { ColorID_Click(form, index); };
    for (int i = 0; auto& bar : form.ColorScroll)
        bar.Scroll = [&form, index = i++] { ColorScroll_Scroll(form, index); };
    for (int i = 0; auto& button : form.ColorBut)
        button.Click = [&form, index = i++] { ColorBut_Click(form, index); };
    form.ColorBut[0].Caption = "&OK";
    form.ColorBut[0].Default = true;
    form.ColorBut[1].Caption = "&Cancel";
    form.ColorBut[1].Cancel = true;
}

toolkit::PanelContents colorPanel(Zevlin& form) {
    wireColorPanel(form);
    form.ColorPic.AccessibleName = "Color of marks and texts";
    for (std::size_t i = 0; const char* name : {"Red", "Green", "Blue"})
        form.ColorScroll.at(i++).AccessibleName = name;
    for (std::size_t i = 0; const char* name : {"Pure red", "Pure green", "Pure blue"})
        form.ColorID.at(i++).AccessibleName = name;
    toolkit::LabelGroup samples;
    samples.labels = &form.ColorSample;
    samples.Click = run(form, ColorSample_Click);
    samples.AccessibleName = colorSampleName;
    samples.IsChosen = [&form](int index) { return !form.ColorSample[index].Caption.empty(); };
    toolkit::PanelContents panel;
    panel.box = &form.ColorPic;
    panel.labels = {&form.Lpresetcolors, &form.ColorLabel, &form.ColorText};
    for (auto& number : form.ColorID) panel.labels.push_back(&number);
    panel.groups = {samples};
    for (auto& bar : form.ColorScroll) panel.controls.emplace_back(&bar);
    for (auto& button : form.ColorBut) panel.controls.emplace_back(&button);
    return panel;
}

toolkit::PanelContents helpButton(Zevlin& form) {
    form.PHelp.AccessibleName = "Help";
    form.BHelp.Caption = "\xD7";
    form.BHelp.AccessibleName = "Close help";
    form.BHelp.Default = form.BHelp.Cancel = true;
    form.BHelp.Click = run(form, BHelp_Click);
    // The keys stay with the page, whatever becomes of a press.
    form.BHelp.GotFocus = [&form] { form.SetFocus(form.THelp); };
    toolkit::PanelContents panel;
    panel.box = &form.PHelp;
    panel.controls = {&form.BHelp};
    return panel;
}

} // namespace

std::vector<toolkit::PanelContents> wirePanels(Zevlin& form) {
    return {chooser(form), colorPanel(form), helpButton(form)};
}

void Form_Resize(Zevlin& form) {
    trapped(form, "Error in Form_Resize: #", [&] {
        if (form.P3.Visible) layOutChooser(form);
        if (form.ColorPic.Visible) layOutColorPanel(form);
        if (form.THelp.Visible) layOutHelp(form);
    });
}

} // namespace zev
