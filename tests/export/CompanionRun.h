#pragma once

// The companion started as a command.

#include <gtest/gtest.h>

#include <QProcess>
#include <functional>

namespace {

const QString sample = QStringLiteral(ZG_SOURCE_DIR "/data/samples/LOVETT_1988.frq");

struct Result {
    int status = -1;
    QByteArray out;
    QByteArray errors;
};

/// What the system's own line ends are makes no difference.
inline QByteArray plainLines(QByteArray text) { return text.replace("\r\n", "\n"); }

/// Starts the companion with these words; the preparation may still change its process.
inline Result runCompanion(const QStringList& words, const std::function<void(QProcess&)>& prepare = {}) {
    QProcess process;
    if (prepare) prepare(process);
    process.start(QStringLiteral(ZG_COMPANION), words);
    EXPECT_TRUE(process.waitForFinished(60000));
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    return {process.exitCode(), plainLines(process.readAllStandardOutput()),
            plainLines(process.readAllStandardError())};
}

}  // namespace
