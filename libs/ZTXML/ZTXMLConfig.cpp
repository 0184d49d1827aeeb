#include "ZTXMLConfig.h"

#include "ZTKeyAccount.h"
#include "ZTXMLLoader.h"
#include "ZTXMLParser.h"

ZTXMLConfig::ZTXMLConfig(const ZTResourceFile& theFile, bool theFollowKeyAccount, QObject* theParent)
    : QObject(theParent), myFile(theFile)
{
    // The base version on purpose: a derived class is not built yet and loads its own values
    // in its constructor.
    ZTXMLConfig::reload();
    if (theFollowKeyAccount) {
        connect(ZTSingleton<ZTKeyAccount>::instance(), &ZTKeyAccount::applicationKeyAccountChanged, this,
                &ZTXMLConfig::reload);
    }
}

ZTXMLConfig::~ZTXMLConfig() = default;

void ZTXMLConfig::reload()
{
    myDocument = ZTXMLLoader::loadDocument(myFile.fileInfo(false, QString()));
    Q_EMIT reloaded();
}

ZTResourceFile ZTXMLConfig::resourceFile() const
{
    return myFile;
}

QDomElement ZTXMLConfig::documentElement() const
{
    return myDocument.documentElement();
}

int ZTXMLConfig::getIntAttributeOfNode(const QString& theNode, const QString& theAttribute,
                                       int theDefault) const
{
    return ZTXMLParser::intAttribute(findNode(theNode), theAttribute, theDefault);
}

QString ZTXMLConfig::getAttributeOfNode(const QString& theNode, const QString& theAttribute,
                                        const QString& theDefault) const
{
    return ZTXMLParser::attribute(findNode(theNode), theAttribute, theDefault, true);
}

QDomElement ZTXMLConfig::findNode(const QString& theNode) const
{
    const QDomElement root = documentElement();
    if (root.isNull() || root.tagName() == theNode)
        return root;
    return root.elementsByTagName(theNode).item(0).toElement();
}
