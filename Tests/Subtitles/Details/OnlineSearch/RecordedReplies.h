#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

namespace Korvex::Testing
{

constexpr char NO_REPLIES[] = "KORVEX_TEST_REPLIES names no folder of recorded replies";

/// Where what the services really sent is kept, if it is.
inline bool HasReplies()
{
    return qEnvironmentVariableIsSet("KORVEX_TEST_REPLIES");
}
inline QDir GetReplies(QString const& folder = {})
{
    return QDir(qEnvironmentVariable("KORVEX_TEST_REPLIES") + '/' + folder);
}

/// "v1/download-200.json".
inline QByteArray LoadReply(QString const& name)
{
    QFile file(GetReplies().filePath(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
}

} // namespace Korvex::Testing
