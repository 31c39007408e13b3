// The three mail exports, written by the window's commands and by fenwold-admin over the same
// ledger, against the expected files; and the ways they end in silence.
#include "MailFixture.h"

#include "support/AdminProcess.h"
#include "support/TempDir.h"

#include <QAction>
#include <QDir>
#include <QFile>

namespace {

struct Form {
    const char* list;     // the word of fenwold-admin export
    const char* expected; // the file under tests/data/mail, without ".csv"
    QAction* frm_Edit_Mail::*command;
};
const Form kForms[] = {
    {"mail", "full", &frm_Edit_Mail::Mnu_Export},
    {"mail-addressbook", "addressbook", &frm_Edit_Mail::Mnu_Export_OE},
    {"mail-beatbox", "beatbox", &frm_Edit_Mail::Mnu_Export_beat},
};

class MailExportTest : public MailFixture {
protected:
    AdminRun exportCommand(const Form& form, const QStringList& options, const QString& target)
    {
        return Admin(QStringList{QStringLiteral("export"), QString::fromUtf8(form.list), QStringLiteral("--ledger"), ledger.path()}
                     + options + QStringList{target});
    }
    QByteArray fileBytes(const QString& name) const { return FileBytes(out.file(name)); }

    TempDir out;
};

TEST_F(MailExportTest, EachFormIsWrittenAlikeByTheWindowAndByTheCommand)
{
    fillLedger();
    frm_Edit_Mail& w = open();
    for (const QString& location : {QString(), QStringLiteral("1")}) {
        if (!location.isEmpty())
            pick(*w.cmb_Location, QStringLiteral("本社3F"));
        for (const Form& form : kForms) {
            const QString name = QString::fromUtf8(form.expected) + (location.isEmpty() ? QString() : QStringLiteral("_location1"));
            SCOPED_TRACE(name.toStdString());
            const QByteArray expected = ReadTestData(QStringLiteral("mail/") + name + QStringLiteral(".csv"));

            const AdminRun r = exportCommand(form, location.isEmpty() ? QStringList{} : QStringList{QStringLiteral("--location"), location},
                                             out.file(name));
            EXPECT_EQ(r.exitCode, 0) << r.err.toStdString();
            EXPECT_EQ(fileBytes(name), expected);

            dialogs.answerFile(out.file(QStringLiteral("window-") + name));
            (w.*form.command)->trigger();
            EXPECT_EQ(fileBytes(QStringLiteral("window-") + name + QStringLiteral(".csv")), expected);
        }
    }
    EXPECT_EQ(dialogs.messageTexts(), QStringList(6, QStringLiteral("完了しました")));
    EXPECT_EQ(dialogs.calls()[0].file.filterIndex, 2);
}

TEST_F(MailExportTest, AnEmptyRegisterWritesNothingButTheAddressBooksHeading)
{
    for (const Form& form : kForms) {
        const AdminRun r = exportCommand(form, {}, out.file(QString::fromUtf8(form.list)));
        EXPECT_EQ(r.exitCode, 0) << r.err.toStdString();
    }
    EXPECT_EQ(fileBytes(QStringLiteral("mail")), QByteArray());
    EXPECT_EQ(fileBytes(QStringLiteral("mail-beatbox")), QByteArray());
    EXPECT_EQ(
        fileBytes(QStringLiteral("mail-addressbook")),
        ReadTestData(QStringLiteral("mail/addressbook.csv")).left(ReadTestData(QStringLiteral("mail/addressbook.csv")).indexOf('\n') + 1));

    frm_Edit_Mail& w = open();
    dialogs.answerFile(out.file(QStringLiteral("window")));
    w.Mnu_Export_OE->trigger();
    EXPECT_EQ(fileBytes(QStringLiteral("window.csv")), fileBytes(QStringLiteral("mail-addressbook")));
}

TEST_F(MailExportTest, CancelAndFailuresEndInSilenceInTheWindowButNotInTheCommand)
{
    fillLedger();
    frm_Edit_Mail& w = open();
    // a cancelled dialog writes nothing and shows nothing
    dialogs.answerFile(std::nullopt);
    w.Mnu_Export->trigger();
    // a name ending in ".csv" gets it twice
    dialogs.answerFile(out.file(QStringLiteral("list.csv")));
    w.Mnu_Export_beat->trigger();
    EXPECT_EQ(fileBytes(QStringLiteral("list.csv.csv")), ReadTestData(QStringLiteral("mail/beatbox.csv")));
    // a file that cannot be made ends the command as a cancel does
    dialogs.answerFile(out.file(QStringLiteral("no-folder/list")));
    w.Mnu_Export_OE->trigger();
    EXPECT_EQ(QDir(out.path()).entryList(QDir::Files), QStringList{QStringLiteral("list.csv.csv")});
    EXPECT_EQ(dialogs.messageTexts(), QStringList{QStringLiteral("完了しました")});

    // the command says so and ends with status 1, as it does for a location the combo does not offer
    AdminRun r = exportCommand(kForms[0], {}, out.file(QStringLiteral("no-folder/list")));
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_FALSE(r.err.isEmpty());
    for (const QString& bad : {QStringLiteral("3"), QStringLiteral("9"), QStringLiteral("本社")}) {
        r = exportCommand(kForms[1], {QStringLiteral("--location"), bad}, out.file(QStringLiteral("book")));
        EXPECT_EQ(r.exitCode, 1) << bad.toStdString();
        EXPECT_TRUE(r.err.contains(bad)) << r.err.toStdString();
    }
    EXPECT_FALSE(QFile::exists(out.file(QStringLiteral("book"))));
}

} // namespace
