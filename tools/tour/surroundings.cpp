// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "surroundings.h"

#include <fstream>
#include <stdexcept>

namespace zelvar::tour {

namespace {

// Other fonts that are installed must not fill in for these. The system's cache is read only.
constexpr char kFonts[] = R"(<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "fonts.dtd">
<fontconfig>
  <dir>/usr/share/fonts</dir>
  <selectfont>
    <acceptfont><glob>*/DejaVuSans.ttf</glob></acceptfont>
    <acceptfont><glob>*/DejaVuSans-Bold.ttf</glob></acceptfont>
    <acceptfont><glob>*/DejaVuSansMono.ttf</glob></acceptfont>
    <acceptfont><glob>*/DejaVuSansMono-Bold.ttf</glob></acceptfont>
    <rejectfont><glob>*.*</glob></rejectfont>
  </selectfont>
  <alias><family>sans-serif</family><prefer><family>DejaVu Sans</family></prefer></alias>
  <alias><family>monospace</family><prefer><family>DejaVu Sans Mono</family></prefer></alias>
  <match target="font">
    <edit name="antialias" mode="assign"><bool>true</bool></edit>
    <edit name="hinting" mode="assign"><bool>true</bool></edit>
    <edit name="hintstyle" mode="assign"><const>hintslight</const></edit>
    <edit name="rgba" mode="assign"><const>none</const></edit>
  </match>
  <cachedir>/var/cache/fontconfig</cachedir>
</fontconfig>
)";

}  // namespace

e2e::Variables Surroundings(const e2e::TempFolder& folder, const std::string& palette) {
    const std::string fonts = folder.Path("fonts.conf");
    if (!(std::ofstream(fonts) << kFonts)) {
        throw std::runtime_error("cannot write " + fonts);
    }
    return {{"FONTCONFIG_FILE", fonts},
            {"ZELVARPROBE_PALETTE", palette},
            {"LC_ALL", "C.UTF-8"},
            {"XDG_CONFIG_HOME", folder.Path("config")},
            {"QT_QPA_PLATFORMTHEME", std::nullopt},
            {"QT_STYLE_OVERRIDE", std::nullopt},
            {"QT_FONT_DPI", std::nullopt},
            {"QT_AUTO_SCREEN_SCALE_FACTOR", std::nullopt},
            {"QT_SCREEN_SCALE_FACTORS", std::nullopt}};
}

}  // namespace zelvar::tour
