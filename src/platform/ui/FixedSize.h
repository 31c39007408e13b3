#pragma once

#include <QObject>

namespace ui {

class Form;

// The rule of the windows that keep their design size. At load the window takes its design width
// and height and stands in the middle of the screen (screen size less window size, halved, to a
// whole twip count). Afterwards a maximised window goes back to the normal state, a minimised one
// is left alone, and any other size is set back to the design size.
class FixedSize : public QObject {
    Q_OBJECT

public:
    // Applies the rule to the form for its lifetime; sizes in twips.
    static FixedSize* Apply(Form& form, int widthTwips, int heightTwips);

    int DesignWidth() const { return m_width; }
    int DesignHeight() const { return m_height; }

protected:
    bool eventFilter(QObject* watched, QEvent* e) override;

private:
    FixedSize(Form& form, int widthTwips, int heightTwips);
    void restore();

    Form& m_form;
    int m_width;
    int m_height;
};

} // namespace ui
