#include "platform/ui/FocusEvents.h"
#include "platform/ui/KeyPressFilter.h"

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

using ui::KeyPressFilter;

namespace {

QString typed(const QString& pattern, const QString& keys)
{
    QLineEdit edit;
    KeyPressFilter::Install(&edit, pattern);
    QTest::keyClicks(&edit, keys);
    return edit.text();
}

TEST(KeyPressFilter, TypedCharactersOutsideThePatternNeverArrive)
{
    EXPECT_EQ(typed(KeyPressFilter::Digits, QStringLiteral("12a3.4 5")), QStringLiteral("12345"));

    // full-width digits are no digits
    QLineEdit edit;
    KeyPressFilter::Install(&edit, KeyPressFilter::Digits);
    QKeyEvent wide(QEvent::KeyPress, 0, Qt::NoModifier, QStringLiteral("１"));
    QApplication::sendEvent(&edit, &wide);
    EXPECT_EQ(edit.text(), QString());
}

TEST(KeyPressFilter, BackspacePassesAndPastingIsNotFiltered)
{
    QLineEdit edit;
    KeyPressFilter::Install(&edit, KeyPressFilter::Digits);
    QTest::keyClicks(&edit, QStringLiteral("123"));
    QTest::keyClick(&edit, Qt::Key_Backspace);
    EXPECT_EQ(edit.text(), QStringLiteral("12"));
    QTest::keyClick(&edit, Qt::Key_Left);
    QTest::keyClick(&edit, Qt::Key_Delete);
    EXPECT_EQ(edit.text(), QStringLiteral("1")) << "keys that type nothing pass";

    QApplication::clipboard()->setText(QStringLiteral("ab9"));
    QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(edit.text(), QStringLiteral("1ab9"));

    // what an input method commits is filtered character by character
    QInputMethodEvent commit;
    commit.setCommitString(QStringLiteral("７7x8"));
    QApplication::sendEvent(&edit, &commit);
    EXPECT_EQ(edit.text(), QStringLiteral("1ab978"));
}

} // namespace
