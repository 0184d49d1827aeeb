#ifndef ZTXMLDOCUMENTGUARD_H
#define ZTXMLDOCUMENTGUARD_H

#include "ztxml_export.h"

#include <QString>

#include <memory>

class QIODevice;
class QXmlStreamReader;

// The limits that every reader of a document applies, so that no document costs more than time
// linear in its size, and so that the whole-document and the streaming reader accept and refuse
// the same files. A reader reads through device() and shows every token to check().
//
// Attributes are counted on the bytes, before the XML reader sees them, since the reader itself
// takes time quadratic in the attributes of one element. Depth and the place of a document type
// declaration are checked on the tokens, so that elements that come from entities count too.
class ZTXML_EXPORT ZTXMLDocumentGuard
{
public:
    // Key-account documents nest about eight levels and carry a few dozen attributes on an
    // element; the limits leave room for any growth of the format and refuse what no writer of
    // such a document produces.
    static constexpr int maxDepth = 64;
    static constexpr int maxAttributes = 256;

    // theSource must be open for reading. theOuterDepth: how deep in its document the text
    // stands, for a piece of a document read on its own (an element read again from its file).
    explicit ZTXMLDocumentGuard(QIODevice* theSource, int theOuterDepth = 0);
    ZTXMLDocumentGuard(const ZTXMLDocumentGuard&) = delete;
    ZTXMLDocumentGuard& operator=(const ZTXMLDocumentGuard&) = delete;
    ~ZTXMLDocumentGuard();

    // What the XML reader reads instead of the source. It ends early when a limit is broken.
    QIODevice* device() const;

    // To be called after every readNext(). False when the token breaks a limit; the error is then
    // raised on theReader, which ends reading there.
    bool check(QXmlStreamReader& theReader);

    // After reading: whether the document is refused, by the reader or by a limit.
    bool failed(const QXmlStreamReader& theReader) const;
    // Why, when failed(): the guard's own reason when the device refused to read on, else the
    // reader's.
    QString errorString(const QXmlStreamReader& theReader) const;
    qint64 errorLine(const QXmlStreamReader& theReader) const;
    qint64 errorColumn(const QXmlStreamReader& theReader) const;

private:
    class Device;
    std::unique_ptr<Device> myDevice;
    int myDepth = 0;
    bool myRootSeen = false;
    bool myDoctypeSeen = false;
};

#endif // ZTXMLDOCUMENTGUARD_H
