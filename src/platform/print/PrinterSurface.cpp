#include "platform/print/PrinterSurface.h"

#include "platform/vb/VbError.h"

#include <QFontMetricsF>
#include <QPrinter>

namespace print {

namespace {

// The printer refused to begin the document (no printer, a file that cannot be written).
vb::VbError printerError() { return {482, QStringLiteral("プリンタ エラーです。")}; }

} // namespace

PrinterSurface::PrinterSurface(QPrinter& printer, bool sheetsInOneDocument) : m_printer(printer), m_oneDocument(sheetsInOneDocument) {}

PrinterSurface::~PrinterSurface()
{
    if (m_painter.isActive())
        m_painter.end();
}

QPainter& PrinterSurface::painter()
{
    if (!m_painter.isActive()) {
        if (m_failed || !m_painter.begin(&m_printer)) {
            m_failed = true;
            throw printerError();
        }
        m_pages = 1;
        m_sheetEnded = false;
    } else if (m_sheetEnded) {
        m_printer.newPage();
        ++m_pages;
        m_sheetEnded = false;
    }
    return m_painter;
}

double PrinterSurface::toDevice(double mm) const { return mm * m_printer.resolution() / 25.4; }

void PrinterSurface::SetFont(const QString& name, double pointSize)
{
    m_font.setFamily(name);
    m_font.setPointSizeF(pointSize);
}

void PrinterSurface::SetFontBold(bool on) { m_font.setBold(on); }
void PrinterSurface::SetFontItalic(bool on) { m_font.setItalic(on); }
void PrinterSurface::SetDrawWidth(int pixels) { m_drawWidth = pixels; }

void PrinterSurface::Print(const QString& text)
{
    QPainter& p = painter();
    p.setFont(m_font);
    p.setPen(Qt::black);
    const QFontMetricsF metrics(m_font, &m_printer);
    p.drawText(QPointF(toDevice(CurrentX()), toDevice(CurrentY()) + metrics.ascent()), text);
    moveToNextLine(TextHeight(text));
}

double PrinterSurface::TextWidth(const QString& text) const
{
    return QFontMetricsF(m_font, &m_printer).horizontalAdvance(text) * 25.4 / m_printer.resolution();
}

double PrinterSurface::TextHeight(const QString&) const
{
    return QFontMetricsF(m_font, &m_printer).height() * 25.4 / m_printer.resolution();
}

void PrinterSurface::Line(double x1, double y1, double x2, double y2)
{
    QPainter& p = painter();
    p.setPen(QPen(Qt::black, m_drawWidth));
    p.drawLine(QPointF(toDevice(x1), toDevice(y1)), QPointF(toDevice(x2), toDevice(y2)));
}

void PrinterSurface::NewPage()
{
    painter();
    if (!m_printer.newPage())
        throw printerError();
    ++m_pages;
}

void PrinterSurface::EndDoc()
{
    if (!m_painter.isActive())
        return;
    if (m_oneDocument)
        m_sheetEnded = true;
    else
        m_painter.end();
}

bool PrinterSurface::Finish()
{
    if (m_painter.isActive() && !m_painter.end())
        m_failed = true;
    return !m_failed;
}

double PrinterSurface::ScaleWidth() const { return m_printer.pageRect(QPrinter::Millimeter).width(); }
double PrinterSurface::ScaleHeight() const { return m_printer.pageRect(QPrinter::Millimeter).height(); }

} // namespace print
