#ifndef ZTXMLLOADER_H
#define ZTXMLLOADER_H

#include "ztxml_export.h"

#include <QDomDocument>
#include <QDomElement>

class QFileInfo;

// Reads a whole XML file into a DOM. A file that is missing, unreadable or not well-formed gives
// a null document and exactly one warning that names the file (and for a parse error the line
// and column), so callers only test isNull() and never report again.
class ZTXML_EXPORT ZTXMLLoader
{
public:
    static QDomDocument loadDocument(const QFileInfo& theFile);
    // The root element of loadDocument(); the document lives as long as the element is held.
    static QDomElement loadDocumentElement(const QFileInfo& theFile);
};

#endif // ZTXMLLOADER_H
