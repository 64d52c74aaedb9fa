#pragma once

class QLocale;

namespace tolvik::viewer {

/// Has the program and Qt's own dialogs speak the language of a locale; English where there is no
/// translation. To be called before the first window is made.
void installTranslations(const QLocale& locale);

} // namespace tolvik::viewer
