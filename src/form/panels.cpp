#include "form/panels.h"

#include <string>

#include "form/trace.h"
#include "form/zevlin.h"

namespace zev {
namespace {

constexpr auto gradientTop = toolkit::rgb(208, 224, 255);
constexpr auto gradientFoot = toolkit::rgb(144, 154, 255);

} // namespace

void GradientFill(Zevlin& form, IncludePanel includePanel) {
    const bool withPanel = includePanel == IncludePanel::Yes;
    procedure(form, "GradientFill", truthText(withPanel), [&] {
        form.Background = {
            .backdrop = toolkit::Backdrop::Gradient, .top = gradientTop, .bottom = gradientFoot};
        if (withPanel) form.P3.Fill = toolkit::PanelFill::FormGradient;
    });
}

void MakeObjRounded(Zevlin& form, toolkit::Panel& panel, int radius) {
    procedure(form, "MakeObjRounded", [&] { panel.CornerRadius = radius; });
}

void hideHelp(Zevlin& form) {
    form.THelp.Visible = form.PHelp.Visible = form.BHelp.Visible = false;
    form.P1.Enabled = true;
    form.SetFocus(form.P1);
}

} // namespace zev
