// The view's share of the form's state: the picture, its size, colours and whole-card options.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "toolkit/model/control.h"
#include "toolkit/model/control_array.h"
#include "toolkit/model/form.h"
#include "toolkit/model/label.h"
#include "toolkit/model/panel.h"
#include "view/card_picture.h"
#include "view/zoom_ladder.h"

namespace zev {

/// Width of the card, in pixels, that the layout's places refer to.
constexpr float designWidth = 1198;

struct ViewState {
    toolkit::PictureBox P1;    ///< the card as shown, with its fields
    CardPicture PBase;         ///< the card at full size, never shown
    toolkit::PictureBox BGPat; ///< the tile of the background
    toolkit::Panel P3;         ///< the chooser's panel
    toolkit::Stacking P1Stack;
    toolkit::Label Timestamp;
    toolkit::Label CreditLabel;

    std::int16_t ZoomLevel = 0;
    std::int16_t ZoomLevels = 0;
    std::int16_t DesignZoomLevel = 0;
    ZoomLadder ZoomTable{};
    float LastImageScale = 0;
    std::optional<PrefetchedPicture> PictureStarted; ///< until SetImageSize takes it
    bool Zooming = false;

    std::int32_t ColorScheme = 0; ///< 0 the layout's own colours, else one colour for all
    std::int16_t LastSchemeIndex = 1;
    std::int16_t PreviousScheme = 0; ///< checked before the last click; what Cancel returns to
    std::array<toolkit::MenuItem, 2> mcolorscheme{
        toolkit::MenuItem{.Caption = "ACBL Compliant", .Checked = true},
        toolkit::MenuItem{.Caption = "Custom..."}};

    toolkit::MenuItem MView;
    toolkit::MenuItem MZoomIn;
    toolkit::MenuItem MZoomOut;
    toolkit::MenuItem mColorManagement; ///< the menu of the schemes

    toolkit::Panel ColorPic;                           ///< the colour panel
    toolkit::PanelLabel Lpresetcolors;                 ///< what to do
    toolkit::ControlArray<toolkit::Label> ColorSample; ///< the presets, from 0
    toolkit::PanelLabel ColorLabel;                    ///< its BackColor is the chosen colour
    toolkit::PanelLabel ColorText;                     ///< a sample in that colour
    std::array<toolkit::PanelLabel, 3> ColorID;        ///< red, green and blue as numbers
    std::array<toolkit::ScrollBar, 3> ColorScroll;     ///< and as sliders
    std::array<toolkit::CommandButton, 2> ColorBut;    ///< OK and Cancel

    toolkit::MenuItem MFitScreenWidth;
    toolkit::MenuItem MFitScreenHeight;
    toolkit::MenuItem mFontSize; ///< the menu of the four sizes
    toolkit::MenuItem mSmallerTextFont;
    toolkit::MenuItem mNormalTextFont{.Checked = true};
    toolkit::MenuItem mLargerTextFont;
    toolkit::MenuItem mBigTextFont;
    toolkit::MenuItem mBold;
    toolkit::MenuItem mLeftJustify;
    toolkit::MenuItem mFillIn;
};

} // namespace zev
