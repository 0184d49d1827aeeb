#ifndef ZTXMLPARSER_H
#define ZTXMLPARSER_H

#include "ZTDistance.h"
#include "ztxml_export.h"

#include <QDateTime>
#include <QString>
#include <QStringView>

class QDomElement;
class QDomNamedNodeMap;
class QDomNode;

// Lenient readers for attributes and element texts. A missing value gives the caller's default,
// and so does a malformed one: a document error costs the one value, silently, and the caller
// decides whether it is worth a warning. All operations are static; the object exists only so
// that callers may hold one.
//
// Numbers are decimal integers with an optional sign and surrounding blanks ("42", " -7 ",
// "+3"); anything else ("4.0", "0x10", "1e3", "12 mm") counts as malformed. Booleans are
// "true", "false", "1", "0", "yes", "no" in any case.
class ZTXML_EXPORT ZTXMLParser
{
public:
    ZTXMLParser();

    // The attribute's text, or theDefault if it is missing. With theEmptyIsMissing an attribute
    // that is present but empty or blank also gives theDefault.
    static QString attribute(const QDomElement& theElement, const QString& theName,
                             const QString& theDefault = QString(), bool theEmptyIsMissing = true);
    static int intAttribute(const QDomElement& theElement, const QString& theName, int theDefault = 0);
    static int intAttribute(const QDomNamedNodeMap& theAttributes, const QString& theName,
                            int theDefault = 0);
    static bool boolAttribute(const QDomElement& theElement, const QString& theName, bool theDefault = false);
    // An unparsable or missing date gives theDefault.
    static QDateTime dateTimeAttribute(const QDomElement& theElement, const QString& theName,
                                       Qt::DateFormat theFormat = Qt::ISODate,
                                       const QDateTime& theDefault = QDateTime());
    // A length: the attribute's decimal number (a dot or a single comma as decimal separator)
    // in theUnit, or theDefault in theUnit when missing or malformed. A length longer than
    // ZTDistance::maxPixels either way counts as malformed.
    static ZTDistance readDistance(const QDomElement& theElement, const QString& theName, double theDefault,
                                   const ZTDistanceUnit& theUnit);

    // The text of the first child element named theChildName (of theNode itself if the name is
    // empty), or theDefault if there is no such child.
    static QString text(const QDomNode& theNode, const QString& theChildName,
                        const QString& theDefault = QString());
    static int intText(const QDomNode& theNode, const QString& theChildName, int theDefault = 0);
    static bool boolText(const QDomNode& theNode, const QString& theChildName, bool theDefault = false);
    // The element's own text as an integer.
    static int intValue(const QDomElement& theElement, int theDefault = 0);

    // Decimal integer as described above, without allocating. On failure (also on overflow of
    // 32 bits) gives 0 and sets *ok to false.
    static int fastDecodeInt(const QString& theText, bool* ok = nullptr);
    static int fastDecodeInt(QStringView theText, bool* ok = nullptr);
    // The boolean keywords above; on anything else gives theDefault and sets *ok to false.
    static bool decodeBool(QStringView theText, bool theDefault, bool* ok = nullptr);
};

#endif // ZTXMLPARSER_H
