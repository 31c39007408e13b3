#include "platform/app/App.h"
#include "platform/ui/CommonDialog.h"
#include "platform/ui/Dispatch.h"
#include "platform/ui/Fonts.h"
#include "platform/ui/QtDialogs.h"
#include "platform/vb/VbError.h"

#include "support/ScriptedDialogs.h"
#include "support/TempDir.h"

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QFontInfo>
#include <QFontMetrics>
#include <QMessageBox>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

// Runs Qt's save dialog, chooses the file and accepts; says whether a question came before the
// dialog closed (the question is refused, and the dialog with it).
bool QtSaveAsks(long flags, const QString& file, std::optional<QString>& chosen)
{
    ui::FileDialogRequest r;
    r.kind = ui::FileDialogRequest::Save;
    r.title = QStringLiteral("CSV書き出し");
    r.filter = QStringLiteral("全て(*.*)|*.*") + QStringLiteral("CSVファイル|*.csv");
    r.flags = flags;
    bool asked = false;
    QTimer::singleShot(0, [&] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        QTimer::singleShot(0, [&asked, dialog] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                asked = true;
                box->reject();
                QTimer::singleShot(0, dialog, &QDialog::reject);
            }
        });
        dialog->selectFile(file);
        static_cast<QDialog*>(dialog)->accept(); // QFileDialog::accept, as the Save button
    });
    chosen = ui::QtDialogs().FileDialog(r);
    return asked;
}

TEST(QtDialogs, SaveDialogReplacesAFileWithoutAQuestionUnlessTheFlagsAskForOne)
{
    TempDir dir;
    dir.write(QStringLiteral("list.csv"), "old");
    std::optional<QString> chosen;
    EXPECT_FALSE(QtSaveAsks(0, dir.file(QStringLiteral("list.csv")), chosen));
    EXPECT_EQ(chosen, dir.file(QStringLiteral("list.csv")));
    EXPECT_TRUE(QtSaveAsks(ui::cdlOFNOverwritePrompt, dir.file(QStringLiteral("list.csv")), chosen));
    EXPECT_EQ(chosen, std::nullopt);
}

// The report and the end that the dispatcher gives an error no handler caught, with the end
// recorded; FatalEndTest ends a real process.
TEST(Dispatch, EveryConnectedHandlerReportsAnUncaughtErrorAndEndsTheProgram)
{
    ScriptedDialogs dialogs;
    std::vector<int> ended;
    app::SetEndHook([&](int status) { ended.push_back(status); });
    QObject context;
    QAction action(&context);
    bool after = false;
    ui::Connect(&action, &QAction::triggered, &context, [&] {
        throw vb::VbError::InvalidUseOfNull();
        after = true;
    });
    action.trigger();
    EXPECT_FALSE(after);
    ASSERT_EQ(dialogs.messages().size(), 1u);
    const auto m = dialogs.messages()[0];
    EXPECT_EQ(m.prompt, QStringLiteral("実行時エラー '94':\r\n\r\nNull の使い方が不正です。"));
    EXPECT_EQ(m.buttons, ui::vbCritical | ui::vbOKOnly);
    EXPECT_EQ(ended, std::vector<int>{ui::FatalExitStatus});

    // a failure outside the run-time's errors ends the run the same way instead of aborting
    ui::Dispatch([] { throw std::runtime_error("bad state"); });
    ASSERT_EQ(dialogs.messageTexts().size(), 2);
    EXPECT_EQ(dialogs.messageTexts()[1], QStringLiteral("実行時エラー '51':\r\n\r\n内部エラーです。\r\nbad state"));
    EXPECT_EQ(ended.size(), 2u);
    app::SetEndHook({});
}

TEST(Fonts, MsGothicShowsJapaneseWithTheIpaFont)
{
    ui::InstallFontSubstitutes();
    for (const char* family : {"ＭＳ ゴシック", "MS Gothic"}) {
        const QFont f(QString::fromUtf8(family), 9);
        EXPECT_EQ(QFontInfo(f).family(), QStringLiteral("IPAGothic")) << family;
    }
    const QFontMetrics m(ui::MsGothic());
    for (QChar c : QStringLiteral("ファイル編集管理表示設置場所Ｃドライブ全容量"))
        EXPECT_TRUE(m.inFont(c)) << QString(c).toStdString();
}

} // namespace
