#pragma once

#include <QStatusBar>
#include <QString>

#include <vector>

class QLabel;

namespace ui {

// The StatusBar control: panels numbered from 1, each a text. Panel 1 takes the free width. A
// text with line breaks (the ledger's "file not found" text has one) shows on several lines.
class StatusBar : public QStatusBar {
    Q_OBJECT

public:
    explicit StatusBar(int panels, QWidget* parent = nullptr);

    int PanelCount() const { return int(m_panels.size()); }
    // The text as it was set; a panel number outside 1..PanelCount raises error 9.
    QString PanelText(int panel) const;
    void SetPanelText(int panel, const QString& text);

private:
    QLabel* panel(int index) const;
    std::vector<QLabel*> m_panels;
    std::vector<QString> m_texts;
};

} // namespace ui
