// Runs the tst_*.qml of this folder.
#include <QtQuickTest>

QUICK_TEST_MAIN(module)
