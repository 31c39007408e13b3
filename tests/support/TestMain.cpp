// One main for every test executable: a QApplication on the offscreen platform, a fixed locale,
// modal windows that return at once instead of running their own loop, then GoogleTest.
#include "platform/ui/Form.h"

#include <QApplication>
#include <QLocale>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLocale::setDefault(QLocale(QLocale::Japanese, QLocale::Japan));
    QApplication app(argc, argv);
    ui::SetModalLoop(false);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
