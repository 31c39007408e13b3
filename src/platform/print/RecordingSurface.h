#pragma once

#include "platform/print/PrintSurface.h"

#include <QStringList>

namespace print {

// A surface for tests: a printable area of the given size, text measured at a fixed pitch (a
// full-width character as wide as the font's size, a half-width one half as wide, every text
// one font size high), and every operation recorded as a line of text:
//     font ＭＳ ゴシック 9 | bold on | italic off | width 3
//     text 10,3 PC-SOUMU-01 | line 10,6 180,6 | page | end
class RecordingSurface : public PrintSurface {
public:
    RecordingSurface(double widthMm, double heightMm) : m_width(widthMm), m_height(heightMm) {}

    const QStringList& Operations() const { return m_ops; }
    // The texts drawn, "y text" with y in whole lines of the given pitch, page by page ("page").
    QStringList Lines(double lineHeight) const;

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
    double ScaleWidth() const override { return m_width; }
    double ScaleHeight() const override { return m_height; }

private:
    double sizeMm() const { return m_pointSize * 25.4 / 72.0; }

    double m_width;
    double m_height;
    double m_pointSize = 9;
    QStringList m_ops;
};

} // namespace print
