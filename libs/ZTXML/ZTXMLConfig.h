#ifndef ZTXMLCONFIG_H
#define ZTXMLCONFIG_H

#include "ZTResourceFile.h"
#include "ztxml_export.h"

#include <QDomDocument>
#include <QObject>

// A small configuration document of the key account, held in memory for the life of the object
// (configuration files are a few elements). A missing or broken file leaves an empty document
// after the loader's one warning; all questions then give their defaults.
class ZTXML_EXPORT ZTXMLConfig : public QObject
{
    Q_OBJECT

public:
    // Loads theFile now. With theFollowKeyAccount the document is loaded again, through
    // reload(), whenever the application switches key accounts, so that it always belongs to
    // the current one.
    ZTXMLConfig(const ZTResourceFile& theFile, bool theFollowKeyAccount, QObject* theParent = nullptr);
    ~ZTXMLConfig() override;

    // Reads the file again from the current key account. Derived classes that keep values of
    // their own extend this and call it first. Emits reloaded().
    virtual void reload();

    ZTResourceFile resourceFile() const;
    // Null if the file was missing or broken.
    QDomElement documentElement() const;
    // The integer attribute theAttribute of the first element named theNode (the root itself,
    // or the first such element below it in document order), or theDefault if the element or
    // the attribute is missing or malformed.
    int getIntAttributeOfNode(const QString& theNode, const QString& theAttribute, int theDefault) const;
    QString getAttributeOfNode(const QString& theNode, const QString& theAttribute,
                               const QString& theDefault = QString()) const;

Q_SIGNALS:
    void reloaded();

private:
    QDomElement findNode(const QString& theNode) const;

    ZTResourceFile myFile;
    QDomDocument myDocument;
};

#endif // ZTXMLCONFIG_H
