#pragma once

#include "mail/frm_Edit_Mail.h"
#include "platform/ui/DropDownCombo.h"

#include "support/WindowTest.h"

// A ledger with the mail register's cases: accounts of users and computers that exist, of a
// retired user, of a retired computer at a retired location, of a user whose section has no row
// and of a computer that is gone (these two never show), a Windows user name with a comma, and
// Japanese names. Sorted by address the grid shows keys 5, 1, 2, 0.
class MailFixture : public WindowTest {
protected:
    void fillLedger()
    {
        ledger.exec(QStringLiteral("INSERT INTO tbl_Location VALUES (1, '本社3F', '', '0'), (2, '大阪支店', '', '0'), "
                                   "(3, '旧倉庫', '', '1')"));
        ledger.exec(QStringLiteral("INSERT INTO tbl_Section VALUES (1, '総務部', '', '0'), (2, '営業部', '', '1')"));
        ledger.exec(QStringLiteral("INSERT INTO tbl_Division VALUES (1, '庶務課', '', '0'), (2, '第一営業課', '', '0')"));
        ledger.exec(QStringLiteral("INSERT INTO tbl_User (User_Code, User_Name, kana, Available_flug, Section_Code, Division_Code) VALUES "
                                   "(1, '山田 太郎', 'やまだ たろう', '0', 1, 1), (2, '佐藤 花子', 'さとう はなこ', '0', 2, 2), "
                                   "(3, '高橋 誠', 'たかはし まこと', '1', 1, 1), (4, '鈴木 一郎', 'すずき いちろう', '0', 9, 1)"));
        ledger.computer(1, 0, 0, "Computer_Name = 'PC-SOUMU-01', ipaddress = '192.168.0.10', Operating_System = 'Windows XP'",
                        "Location_Code = 1");
        ledger.computer(2, 0, 0, "Computer_Name = 'SALES-PC07', ipaddress = '10.1.20.107', Operating_System = 'Windows 2000'",
                        "Location_Code = 2");
        ledger.computer(3, 1, 0, "Computer_Name = 'PC-OLD'", "Location_Code = 3");
        ledger.exec(QStringLiteral(
            "INSERT INTO tbl_Mail_Management (\"Key\", User_Code, Conputer_Code, beat_loginID, Windows_UserName, "
            "beat_loginPassward, Mail_Address, SMTP_IPAddress, POP3_IPAddress, Mailbox_AccountName, Mailbox_Password) VALUES "
            "(0, 1, 1, 'yamada01', 'yamada,t', 'yt2004', 'yamada@example.jp', 'smtp.example.jp', 'pop.example.jp', 'yamada', 'mb-7731'), "
            "(1, 2, 2, 'sato01', 'sato-h', 'hana07', 'sato@example.jp', '10.1.20.1', '10.1.20.1', 'sato', 'mb-1206'), "
            "(2, 3, 1, 'takahashi', 'takahashi', 'mako88', 'takahashi@example.jp', 'smtp.example.jp', 'pop.example.jp', "
            "'takahashi', 'mb-0912'), "
            "(3, 4, 1, 'suzuki01', 'suzuki', 'ichi99', 'suzuki@example.jp', NULL, NULL, NULL, NULL), "
            "(4, 1, 7, 'yamada02', 'yamada', 'yt2004', 'yamada2@example.jp', NULL, NULL, NULL, NULL), "
            "(5, 2, 3, 'sato02', 'sato-h', '', 'sato2@example.jp', NULL, NULL, NULL, NULL)"));
    }
    frm_Edit_Mail& open()
    {
        frm_Edit_Mail::Instance().Show(ui::vbModal);
        return frm_Edit_Mail::Instance();
    }
};
