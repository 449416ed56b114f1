// What every fuzzer starts with: Qt without a display.
#include "FuzzInput.h"

#include <QGuiApplication>

int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Kept until the process ends: some of Qt's own statics are gone before ours.
    static const auto *application = new QGuiApplication(*argc, *argv);
    Q_UNUSED(application)
    return 0;
}
