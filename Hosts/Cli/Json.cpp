#include "Cli/Json.h"

#include <QByteArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

#include <ostream>

namespace Korvex::Cli
{

void WriteJsonLine(std::ostream& out, QJsonObject const& object)
{
    QByteArray const line = QJsonDocument(object).toJson(QJsonDocument::Compact);
    out.write(line.constData(), line.size());
    // A script that follows the job wants each line at once.
    out << std::endl;
}

QString ToJsonText(std::string const& utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

} // namespace Korvex::Cli
