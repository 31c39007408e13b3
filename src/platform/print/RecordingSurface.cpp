#include "platform/print/RecordingSurface.h"

#include "platform/text/Cp932.h"

#include <cmath>

namespace print {

namespace {

QString number(double v) { return QString::number(v, 'g', 6); }
QString onOff(bool on) { return on ? QStringLiteral("on") : QStringLiteral("off"); }

} // namespace

void RecordingSurface::SetFont(const QString& name, double pointSize)
{
    m_pointSize = pointSize;
    m_ops << QStringLiteral("font ") + name + u' ' + number(pointSize);
}

void RecordingSurface::SetFontBold(bool on) { m_ops << QStringLiteral("bold ") + onOff(on); }
void RecordingSurface::SetFontItalic(bool on) { m_ops << QStringLiteral("italic ") + onOff(on); }
void RecordingSurface::SetDrawWidth(int pixels) { m_ops << QStringLiteral("width ") + QString::number(pixels); }

void RecordingSurface::Print(const QString& text)
{
    m_ops << QStringLiteral("text ") + number(CurrentX()) + u',' + number(CurrentY()) + u' ' + text;
    moveToNextLine(TextHeight(text));
}

double RecordingSurface::TextWidth(const QString& text) const { return text::ByteLength(text) * sizeMm() / 2; }
double RecordingSurface::TextHeight(const QString&) const { return sizeMm(); }

void RecordingSurface::Line(double x1, double y1, double x2, double y2)
{
    m_ops << QStringLiteral("line ") + number(x1) + u',' + number(y1) + u' ' + number(x2) + u',' + number(y2);
}

void RecordingSurface::NewPage() { m_ops << QStringLiteral("page"); }
void RecordingSurface::EndDoc() { m_ops << QStringLiteral("end"); }

QStringList RecordingSurface::Lines(double lineHeight) const
{
    QStringList out;
    for (const QString& op : m_ops) {
        if (op == QLatin1String("page")) {
            out << op;
            continue;
        }
        if (!op.startsWith(QLatin1String("text ")))
            continue;
        const qsizetype comma = op.indexOf(u',');
        const qsizetype blank = op.indexOf(u' ', comma);
        const double y = op.mid(comma + 1, blank - comma - 1).toDouble();
        out << QString::number(std::lround(y / lineHeight)) + u' ' + op.mid(blank + 1);
    }
    return out;
}

} // namespace print
