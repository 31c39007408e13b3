#include "platform/ui/Twips.h"

#include "platform/vb/VbError.h"

#include <QGuiApplication>
#include <QScreen>

#include <cmath>

namespace ui {

namespace {
double logicalDpi()
{
    if (const QScreen* s = QGuiApplication::primaryScreen())
        return s->logicalDotsPerInchX();
    return 96.0;
}
} // namespace

int TwipsToPixels(int twips) { return int(std::lround(twips * logicalDpi() / 1440.0)); }

int PixelsToTwips(int pixels) { return int(std::lround(pixels * 1440.0 / logicalDpi())); }

int TwipsPerPixel() { return int(std::lround(1440.0 / logicalDpi())); }

QColor QBColor(int index)
{
    static const QColor palette[16] = {
        {0, 0, 0},       {0, 0, 128}, {0, 128, 0}, {0, 128, 128}, {128, 0, 0}, {128, 0, 128}, {128, 128, 0}, {192, 192, 192},
        {128, 128, 128}, {0, 0, 255}, {0, 255, 0}, {0, 255, 255}, {255, 0, 0}, {255, 0, 255}, {255, 255, 0}, {255, 255, 255},
    };
    if (index < 0 || index > 15)
        throw vb::VbError::InvalidProcedureCall();
    return palette[index];
}

} // namespace ui
