#pragma once
// The panel's own QML types under "Sulkbox" 1.0: the chart items, the icon,
// and the banner, clean-up and cursor helpers.

namespace PanelTypes {

// Safe to call more than once.
void registerAll();

} // namespace PanelTypes
