#include "shell/PlaceholderForm.h"

#include "platform/ui/Twips.h"

#include <QHash>
#include <QLabel>
#include <QPointer>
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

PlaceholderForm& PlaceholderForm::Instance(const char* name)
{
    static QHash<QString, QPointer<PlaceholderForm>> forms;
    QPointer<PlaceholderForm>& form = forms[QString::fromUtf8(name)];
    if (!form || form->IsUnloaded()) {
        form = new PlaceholderForm(QString::fromUtf8(name));
        form->Load();
    }
    return *form;
}
