#include "shell/frmAbout.h"

#include "platform/app/App.h"
#include "platform/ui/Dispatch.h"
#include "platform/ui/FixedSize.h"

#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

frmAbout::frmAbout()
{
    setObjectName(QStringLiteral("frmAbout"));
    setWindowTitle(app::Title() + QStringLiteral(" のバージョン情報"));

    lblTitle = new QLabel(app::Title(), this);
    lblTitle->setObjectName(QStringLiteral("lblTitle"));
    QFont big = lblTitle->font();
    big.setPointSize(big.pointSize() + 6);
    big.setBold(true);
    lblTitle->setFont(big);

    lblVersion = new QLabel(VersionText(), this);
    lblVersion->setObjectName(QStringLiteral("lblVersion"));

    lblDescription = new QLabel(QStringLiteral("パソコン管理台帳"), this);
    lblDescription->setObjectName(QStringLiteral("lblDescription"));

    lblLink = new QLabel(this);
    lblLink->setObjectName(QStringLiteral("lblLink"));
    lblLink->setTextFormat(Qt::RichText);
    lblLink->setTextInteractionFlags(Qt::TextBrowserInteraction);
    lblLink->setOpenExternalLinks(true);

    cmdOK = new QPushButton(QStringLiteral("OK"), this);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);
    ui::Connect(cmdOK, &QPushButton::clicked, this, [this] { cmdOK_Click(); });

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 18, 24, 14);
    layout->addWidget(lblTitle);
    layout->addWidget(lblVersion);
    layout->addSpacing(8);
    layout->addWidget(lblDescription);
    layout->addWidget(lblLink);
    layout->addStretch(1);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(cmdOK);
    layout->addLayout(buttons);
}

QString frmAbout::VersionText() { return QStringLiteral("バージョン ") + QStringLiteral(FENWOLD_VERSION); }

void frmAbout::Form_Load()
{
    // The link opens the folder of the ledger (pcdb.mdb) and the settings (DB.ini).
    const QString folder = QDir::toNativeSeparators(app::Path());
    lblLink->setText(QStringLiteral("台帳の場所: <a href=\"%1\">%2</a>")
                         .arg(QUrl::fromLocalFile(app::Path()).toString(QUrl::FullyEncoded), folder.toHtmlEscaped()));
    ui::FixedSize::Apply(*this, 6000, 3300);
}

void frmAbout::cmdOK_Click() { Unload(); }
