#pragma once

#include <QObject>
#include <QString>

namespace ui {

// The key press filter of the number, address and date fields: a typed character that does not
// match the pattern (VB's Like, one character) never reaches the control. Backspace always
// passes, and so do keys that type nothing, focus moves (Tab) and shortcuts with Ctrl or Alt,
// so that pasting, which the filter never saw, stays unfiltered. Characters committed by an
// input method are filtered one by one, as each arrived as its own key press.
class KeyPressFilter : public QObject {
    Q_OBJECT

public:
    // The patterns the system uses.
    static inline const QString Digits = QStringLiteral("[0-9]");
    static inline const QString DigitsAndDots = QStringLiteral("[0-9.]");
    static inline const QString DigitsAndSlashes = QStringLiteral("[0-9/]");

    // Filters the control's key presses for its lifetime.
    static KeyPressFilter* Install(QObject* control, const QString& pattern);

    // Whether one typed character passes (Backspace, code 8, always does).
    bool Passes(QChar c) const;

protected:
    bool eventFilter(QObject* watched, QEvent* e) override;

private:
    KeyPressFilter(QObject* control, QString pattern);
    QString m_pattern;
};

} // namespace ui
