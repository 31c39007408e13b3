#pragma once

#include <QString>

#include <functional>
#include <memory>

class QPrinter;

// What VB's Printer object gave a program that draws a page line by line: a font, a line width,
// a text cursor, text at the cursor, the measure of a text, straight lines, pages, and the size
// of the surface. Every length is in millimetres of the printable area, its origin at the area's
// top left corner (the Printer with ScaleMode set to millimetres).
namespace print {

class PrintSurface {
public:
    virtual ~PrintSurface() = default;

    // FontName, FontSize (points), FontBold, FontItalic.
    virtual void SetFont(const QString& name, double pointSize) = 0;
    virtual void SetFontBold(bool on) = 0;
    virtual void SetFontItalic(bool on) = 0;
    // DrawWidth: the width of lines, in the device's pixels.
    virtual void SetDrawWidth(int pixels) = 0;

    double CurrentX() const { return m_x; }
    double CurrentY() const { return m_y; }
    void SetCurrentX(double mm) { m_x = mm; }
    void SetCurrentY(double mm) { m_y = mm; }

    // Print: the text with its top left at the cursor; the cursor then stands at the start of
    // the next line (x 0, y one text height lower).
    virtual void Print(const QString& text) = 0;
    virtual double TextWidth(const QString& text) const = 0;
    virtual double TextHeight(const QString& text) const = 0;
    // Line (x1, y1)-(x2, y2).
    virtual void Line(double x1, double y1, double x2, double y2) = 0;
    virtual void NewPage() = 0;
    virtual void EndDoc() = 0;

    // ScaleWidth, ScaleHeight: the printable area.
    virtual double ScaleWidth() const = 0;
    virtual double ScaleHeight() const = 0;

protected:
    void moveToNextLine(double textHeight)
    {
        m_x = 0;
        m_y += textHeight;
    }

private:
    double m_x = 0;
    double m_y = 0;
};

// The run's printer, as the Printer object was the session's: created on first use, its choice
// of printer and paper kept from one dialog to the next. Not owned by the caller.
QPrinter& Printer();

// A surface on the run's printer for one document (the program); tests install a factory that
// gives a recording surface instead. An empty factory returns to the printer.
std::shared_ptr<PrintSurface> OpenPrinter();
void SetSurfaceFactory(std::function<std::shared_ptr<PrintSurface>()> factory);

} // namespace print
