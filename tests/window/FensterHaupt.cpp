// The test program of the windows: the toolkit needs its application before the first window, and no screen.
#include "hilfen/Testordner.h"

#include <QApplication>

#include <gtest/gtest.h>

int main(int anzahl, char** argumente) {
    testing::InitGoogleTest(&anzahl, argumente);
    if (testing::GTEST_FLAG(list_tests)) {
        return RUN_ALL_TESTS();
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const zepholt::hilfen::Testordner ordner;
    std::filesystem::permissions(ordner.Pfad(), std::filesystem::perms::owner_all);
    qputenv("XDG_RUNTIME_DIR", ordner.Pfad().c_str());
    const QApplication anwendung(anzahl, argumente);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
