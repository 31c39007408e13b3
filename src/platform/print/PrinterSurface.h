#pragma once

#include "platform/print/PrintSurface.h"

#include <QFont>
#include <QPainter>

class QPrinter;

namespace print {

// A surface over a QPrinter: paper, or a PDF file when the printer's output format says so. The
// document begins with the first drawing and ends with EndDoc (or when the surface goes, so that
// a sheet broken off by an error still leaves the printer with what was drawn).
//
// With sheetsInOneDocument, EndDoc only closes a sheet: the next drawing starts a new page of
// the same document, which Finish (or the destructor) ends. The companion program puts several
// sheets into one PDF so.
class PrinterSurface : public PrintSurface {
public:
    explicit PrinterSurface(QPrinter& printer, bool sheetsInOneDocument = false);
    ~PrinterSurface() override;
    PrinterSurface(const PrinterSurface&) = delete;
    PrinterSurface& operator=(const PrinterSurface&) = delete;

    void SetFont(const QString& name, double pointSize) override;
    void SetFontBold(bool on) override;
    void SetFontItalic(bool on) override;
    void SetDrawWidth(int pixels) override;
    void Print(const QString& text) override;
    double TextWidth(const QString& text) const override;
    double TextHeight(const QString& text) const override;
    void Line(double x1, double y1, double x2, double y2) override;
    void NewPage() override;
    void EndDoc() override;
    double ScaleWidth() const override;
    double ScaleHeight() const override;

    // Ends the document; false when the printer could not be written.
    bool Finish();
    int Pages() const { return m_pages; }

private:
    // The painter, the document begun (or the next sheet's page started) when needed.
    QPainter& painter();
    double toDevice(double mm) const;

    QPrinter& m_printer;
    bool m_oneDocument;
    QPainter m_painter;
    QFont m_font;
    int m_drawWidth = 1;
    bool m_sheetEnded = false;
    bool m_failed = false;
    int m_pages = 0;
};

} // namespace print
