#include "tests/support/CarriedOut.h"

#include <gtest/gtest.h>

#include <QProcess>

#include "platform/BatchScript.h"
#include "platform/QtText.h"

std::string carriedOut(const zg::RunBatch& run, const std::string& report) {
    constexpr int longEnoughMs = 60'000;
    QProcess shell;
    // "pause" finds the end of its input.
    shell.setStandardInputFile(QProcess::nullDevice());
    if (zg::onWindows)
        shell.start(QStringLiteral("cmd.exe"), {QStringLiteral("/c"), zg::fileName(run.path())});
    else
        shell.start(QStringLiteral("sh"),
                    {QStringLiteral("-c"), zg::fileName(zg::asShellScript(run, report))});
    EXPECT_TRUE(shell.waitForFinished(longEnoughMs)) << run.path();
    return shell.readAllStandardError().toStdString();
}
