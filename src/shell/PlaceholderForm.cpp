#include "shell/PlaceholderForm.h"

#include "platform/ui/Twips.h"

#include <QLabel>
#include <QVBoxLayout>

PlaceholderForm::PlaceholderForm(const QString& name)
{
    setObjectName(name);
    setWindowTitle(name);
    auto* layout = new QVBoxLayout(this);
    auto* note = new QLabel(QStringLiteral("この画面は準備中です。"), this);
    note->setAlignment(Qt::AlignCenter);
    layout->addWidget(note);
    resize(ui::TwipsToPixels(6000), ui::TwipsToPixels(3000));
}
