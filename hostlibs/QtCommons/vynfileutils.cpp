#include "vynfileutils.h"

#include <QDir>
#include <QFileInfo>
#include <QUrl>

namespace {

QStringList& searchPaths()
{
    static QStringList s_paths{QStringLiteral(":/images")};
    return s_paths;
}

QString urlForFile(const QString& filePath)
{
    if (filePath.startsWith(QLatin1Char(':')))
        return QStringLiteral("qrc") + filePath;
    return QUrl::fromLocalFile(QDir::cleanPath(QDir(filePath).absolutePath())).toString();
}

} // namespace

namespace VynFileUtils {

QString pathForImageNamed(const QString& name)
{
    const QStringList& folders = searchPaths();
    if (name.isEmpty() || folders.isEmpty())
        return QString();
    for (const QString& folder : folders) {
        const QString candidate = folder + QLatin1Char('/') + name;
        if (QFileInfo::exists(candidate))
            return urlForFile(candidate);
    }
    return urlForFile(folders.first() + QLatin1Char('/') + name);
}

void setImageSearchPaths(const QStringList& folders)
{
    QStringList cleaned;
    for (const QString& folder : folders) {
        if (folder.isEmpty())
            continue;
        QString trimmed = folder;
        while (trimmed.size() > 1 && trimmed.endsWith(QLatin1Char('/')))
            trimmed.chop(1);
        cleaned.append(trimmed);
    }
    searchPaths() = cleaned;
}

QStringList imageSearchPaths()
{
    return searchPaths();
}

} // namespace VynFileUtils
