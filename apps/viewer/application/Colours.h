#pragma once

#include <QString>

namespace tolvik::viewer {

/// The colours of the windows: those of the desktop, or light or dark ones of the program's own.
enum class Colours { Desktop, Light, Dark };

/// Those that the settings of the program say.
Colours chosenColours();

/// Writes the choice into the settings and gives all windows these colours.
void chooseColours(Colours colours);

/// Gives all windows these colours.
void applyColours(Colours colours);

/// \param name `desktop`, `light` or `dark`; anything else is taken for `desktop`
Colours coloursNamed(const QString& name);

} // namespace tolvik::viewer
