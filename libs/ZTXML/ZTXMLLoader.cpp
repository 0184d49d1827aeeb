#include "ZTXMLLoader.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>

QDomDocument ZTXMLLoader::loadDocument(const QFileInfo& theFile)
{
    const QString path = theFile.filePath();
    if (path.isEmpty()) {
        qWarning() << "cannot load XML: no file given";
        return QDomDocument();
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qWarning().noquote() << QStringLiteral("cannot load XML file %1: %2").arg(path, file.errorString());
        return QDomDocument();
    }
    QDomDocument document;
    QString message;
    int line = 0;
    int column = 0;
    // Namespace processing costs time and no document of a key account uses namespaces.
    if (!document.setContent(&file, false, &message, &line, &column)) {
        qWarning().noquote() << QStringLiteral("XML error in %1 at line %2, column %3: %4")
                                    .arg(path)
                                    .arg(line)
                                    .arg(column)
                                    .arg(message);
        return QDomDocument();
    }
    return document;
}

QDomElement ZTXMLLoader::loadDocumentElement(const QFileInfo& theFile)
{
    return loadDocument(theFile).documentElement();
}
