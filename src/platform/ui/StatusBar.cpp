#include "platform/ui/StatusBar.h"

#include "platform/vb/VbError.h"

#include <QLabel>

namespace ui {

StatusBar::StatusBar(int panels, QWidget* parent) : QStatusBar(parent)
{
    setSizeGripEnabled(true);
    for (int i = 1; i <= panels; ++i) {
        auto* label = new QLabel(this);
        label->setObjectName(QStringLiteral("Panel%1").arg(i));
        label->setTextFormat(Qt::PlainText);
        label->setFrameShape(QFrame::Panel);
        label->setFrameShadow(QFrame::Sunken);
        label->setContentsMargins(3, 1, 3, 1);
        addWidget(label, i == 1 ? 1 : 0);
        m_panels.push_back(label);
        m_texts.emplace_back();
    }
}

QLabel* StatusBar::panel(int index) const
{
    if (index < 1 || index > PanelCount())
        throw vb::VbError::SubscriptOutOfRange();
    return m_panels[size_t(index - 1)];
}

QString StatusBar::PanelText(int index) const
{
    panel(index);
    return m_texts[size_t(index - 1)];
}

void StatusBar::SetPanelText(int index, const QString& text)
{
    QLabel* label = panel(index);
    m_texts[size_t(index - 1)] = text;
    QString shown = text;
    shown.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    label->setText(shown);
}

} // namespace ui
