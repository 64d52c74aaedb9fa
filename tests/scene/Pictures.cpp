#include "scene/Pictures.h"

#include <QSet>

namespace testsupport {

int differences(const QImage& a, const QImage& b)
{
    int count = a.size() == b.size() ? 0 : a.width() * a.height();
    for (int y = 0; y < a.height() && a.size() == b.size(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            count += a.pixel(x, y) != b.pixel(x, y) ? 1 : 0;
        }
    }
    return count;
}

int coloursIn(const QImage& image)
{
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            colours.insert(image.pixel(x, y));
        }
    }
    return colours.size();
}

int pixelsOf(const QColor& colour, const QImage& image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += image.pixel(x, y) == colour.rgb() ? 1 : 0;
        }
    }
    return count;
}

} // namespace testsupport
