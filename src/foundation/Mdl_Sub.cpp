#include "foundation/Mdl_Sub.h"

#include "foundation/Mdl_gData.h"
#include "platform/text/Cp932.h"
#include "platform/ui/Form.h"
#include "platform/vb/Conversion.h"

#include <QPalette>
#include <QWidget>

#include <cmath>

namespace Mdl_Sub {

QString FieldText(const vb::Variant& v) { return v.IsNull() ? QString() : vb::CStr(v); }

void SetFocusColor(QWidget* control, std::int16_t mode)
{
    if (!control || (mode != 1 && mode != 2))
        return;
    QPalette p = control->palette();
    const QColor colour = mode == 1 ? QColor(128, 255, 255) : QColor(Qt::white);
    p.setColor(QPalette::Base, colour);
    p.setColor(QPalette::Window, colour);
    control->setPalette(p);
    control->setAutoFillBackground(true);
}

int ByteLength(const QString& text) { return text::ByteLength(text); }

std::int32_t DigitsToNumber(const QString& text)
{
    std::int32_t result = 0;
    int seen = 0;
    for (qsizetype i = text.size() - 1; i >= 0; --i) {
        const ushort c = text[i].unicode();
        if (c < '0' || c > '9')
            continue;
        const double next = double(result) + double(c - '0') * std::pow(10.0, seen);
        ++seen;
        if (next <= 2147483647.0)
            result = std::int32_t(next);
    }
    return result;
}

void TakeMainWindowPlace(ui::Form& form)
{
    using Mdl_gData::g;
    if (g.MainFormWidth > 0)
        form.SetWidth(g.MainFormWidth);
    if (g.MainFormHeight > 0)
        form.SetHeight(g.MainFormHeight);
    form.SetTop(g.MainFormTop);
    form.SetLeft(g.MainFormLeft);
}

} // namespace Mdl_Sub
