#include "ZTXMLDocumentGuard.h"

#include <QIODevice>
#include <QXmlStreamReader>

#include <algorithm>
#include <cstring>

// Passes the source through while it counts the attributes of each start tag on the raw text,
// and ends the stream at the first tag with too many. It knows just enough of XML to find start
// tags: comments, CDATA sections, processing instructions and the document type declaration
// with its internal subset are passed over, quoted values too. Documents in UTF-16 or UTF-32 are
// read in units of their width, recognised by the byte order mark or by the leading "<".
class ZTXMLDocumentGuard::Device : public QIODevice
{
public:
    explicit Device(QIODevice* theSource) : mySource(theSource) { open(QIODevice::ReadOnly); }

    bool isSequential() const override { return true; }
    bool breached() const { return myBreached; }
    qint64 line() const { return myLine; }
    qint64 column() const { return myColumn; }

protected:
    qint64 readData(char* theData, qint64 theMaxSize) override
    {
        if (myBreached)
            return 0;
        const qint64 read = mySource->read(theData, theMaxSize);
        if (read <= 0)
            return read;
        if (myUnitWidth == 0)
            detectUnits(theData, read);
        if (myUnitWidth == 1) {
            const qint64 breach = scanBytes(theData, read);
            countLines(theData, breach < 0 ? read : breach + 1);
            if (breach < 0)
                return read;
            myBreached = true;
            return breach;
        }
        for (qint64 i = 0; i < read; ++i) {
            if (!feedByte(uchar(theData[i]))) {
                myBreached = true;
                return i;
            }
        }
        return read;
    }

    qint64 writeData(const char*, qint64) override { return -1; }

private:
    enum State {
        Text,
        Open,           // after "<"
        StartTag,       // in a start tag, outside quotes
        AttributeValue, // in a quoted value of a start tag
        EndTag,         // in an end tag
        Bang,           // after "<!"
        BangDash,       // after "<!-"
        Skip,           // until mySkipChar repeated mySkipCount times and ">", then myAfterSkip
        Declaration,    // in "<!DOCTYPE" or another declaration, outside quotes
        DeclarationQuote,
        Subset,         // in the internal subset, between declarations
        SubsetOpen,     // after "<" in the subset
        SubsetBang,     // after "<!" in the subset
        SubsetBangDash, // after "<!-" in the subset
        SubsetDeclaration,
        SubsetDeclarationQuote,
    };

    // The width and byte order of the text's units, from its first bytes.
    void detectUnits(const char* theData, qint64 theSize)
    {
        const auto byte = [&](int theIndex) { return theIndex < theSize ? uchar(theData[theIndex]) : 0xffu; };
        myUnitWidth = 1;
        if ((byte(0) == 0 && byte(1) == 0 && byte(2) == 0xfe && byte(3) == 0xff) ||
            (byte(0) == 0 && byte(1) == 0 && byte(2) == 0 && byte(3) == '<')) {
            myUnitWidth = 4;
            myBigEndian = true;
        } else if ((byte(0) == 0xff && byte(1) == 0xfe && byte(2) == 0 && byte(3) == 0) ||
                   (byte(0) == '<' && byte(1) == 0 && byte(2) == 0 && byte(3) == 0)) {
            myUnitWidth = 4;
        } else if ((byte(0) == 0xfe && byte(1) == 0xff) || (byte(0) == 0 && byte(1) == '<')) {
            myUnitWidth = 2;
            myBigEndian = true;
        } else if ((byte(0) == 0xff && byte(1) == 0xfe) || (byte(0) == '<' && byte(1) == 0)) {
            myUnitWidth = 2;
        }
    }

    // Feeds single-byte text; the index of the byte that breaks the limit, or -1. Text between
    // tags and quoted values are the long stretches, and in them only one byte matters.
    qint64 scanBytes(const char* theData, qint64 theSize)
    {
        qint64 i = 0;
        while (i < theSize) {
            if (myState == Text || myState == AttributeValue) {
                const char wanted = myState == Text ? '<' : char(myQuote);
                const void* found = std::memchr(theData + i, wanted, size_t(theSize - i));
                if (!found)
                    break;
                i = static_cast<const char*>(found) - theData;
            }
            if (!feed(uchar(theData[i])))
                return i;
            ++i;
        }
        return -1;
    }

    // Where the bytes fed leave the line and the column: the column counts the units of the line
    // up to the last one fed, as the stream reader counts them.
    void countLines(const char* theData, qint64 theSize)
    {
        const qint64 newlines = std::count(theData, theData + theSize, '\n');
        if (newlines == 0) {
            myColumn += theSize;
            return;
        }
        myLine += newlines;
        const qint64 last = static_cast<const char*>(memrchr(theData, '\n', size_t(theSize))) - theData;
        myColumn = theSize - last - 1;
    }

    // Feeds text of wider units a byte at a time.
    bool feedByte(uchar theByte)
    {
        myUnit = myBigEndian ? (myUnit << 8) | theByte : myUnit | (quint32(theByte) << (8 * myUnitBytes));
        if (++myUnitBytes < myUnitWidth)
            return true;
        const quint32 unit = myUnit;
        myUnit = 0;
        myUnitBytes = 0;
        countLine(unit);
        return feed(unit);
    }

    void skipUntil(char theChar, int theCount, State theAfter)
    {
        mySkipChar = theChar;
        mySkipCount = theCount;
        mySkipSeen = 0;
        myAfterSkip = theAfter;
        myState = Skip;
    }

    // False at the unit that breaks the limit.
    void countLine(quint32 theUnit)
    {
        if (theUnit == '\n') {
            ++myLine;
            myColumn = 0;
        } else {
            ++myColumn;
        }
    }

    bool feed(quint32 theUnit)
    {
        switch (myState) {
        case Text:
            if (theUnit == '<')
                myState = Open;
            break;
        case Open:
            if (theUnit == '!') {
                myState = Bang;
            } else if (theUnit == '?') {
                skipUntil('?', 1, Text);
            } else if (theUnit == '/') {
                myState = EndTag;
            } else {
                myState = StartTag;
                myAttributes = 0;
            }
            break;
        case StartTag:
            if (theUnit == '"' || theUnit == '\'') {
                myQuote = theUnit;
                myState = AttributeValue;
            } else if (theUnit == '=') {
                if (++myAttributes > ZTXMLDocumentGuard::maxAttributes)
                    return false;
            } else if (theUnit == '>') {
                myState = Text;
            }
            break;
        case AttributeValue:
            if (theUnit == myQuote)
                myState = StartTag;
            break;
        case EndTag:
            if (theUnit == '>')
                myState = Text;
            break;
        case Bang:
            if (theUnit == '-')
                myState = BangDash;
            else if (theUnit == '[')
                skipUntil(']', 2, Text);
            else
                myState = theUnit == '>' ? Text : Declaration;
            break;
        case BangDash:
            skipUntil('-', 2, Text);
            break;
        case Skip:
            feedSkip(theUnit);
            break;
        case Declaration:
            if (theUnit == '"' || theUnit == '\'') {
                myQuote = theUnit;
                myState = DeclarationQuote;
            } else if (theUnit == '[') {
                myState = Subset;
            } else if (theUnit == '>') {
                myState = Text;
            }
            break;
        case DeclarationQuote:
            if (theUnit == myQuote)
                myState = Declaration;
            break;
        case Subset:
            if (theUnit == '<')
                myState = SubsetOpen;
            else if (theUnit == ']')
                myState = Declaration;
            break;
        case SubsetOpen:
            if (theUnit == '!')
                myState = SubsetBang;
            else if (theUnit == '?')
                skipUntil('?', 1, Subset);
            else
                myState = SubsetDeclaration;
            break;
        case SubsetBang:
            // A name follows, or the dashes of a comment.
            myState = theUnit == '-' ? SubsetBangDash : SubsetDeclaration;
            break;
        case SubsetBangDash:
            skipUntil('-', 2, Subset);
            break;
        case SubsetDeclaration:
            if (theUnit == '"' || theUnit == '\'') {
                myQuote = theUnit;
                myState = SubsetDeclarationQuote;
            } else if (theUnit == '>') {
                myState = Subset;
            }
            break;
        case SubsetDeclarationQuote:
            if (theUnit == myQuote)
                myState = SubsetDeclaration;
            break;
        }
        return true;
    }

    void feedSkip(quint32 theUnit)
    {
        if (theUnit == quint32(mySkipChar)) {
            mySkipSeen = std::min(mySkipSeen + 1, mySkipCount);
        } else if (theUnit == '>' && mySkipSeen == mySkipCount) {
            myState = myAfterSkip;
        } else {
            mySkipSeen = 0;
        }
    }

    QIODevice* mySource;
    int myUnitWidth = 0;
    bool myBigEndian = false;
    quint32 myUnit = 0;
    int myUnitBytes = 0;
    State myState = Text;
    State myAfterSkip = Text;
    char mySkipChar = 0;
    int mySkipCount = 0;
    int mySkipSeen = 0;
    quint32 myQuote = 0;
    int myAttributes = 0;
    bool myBreached = false;
    qint64 myLine = 1;
    qint64 myColumn = 0;
};

ZTXMLDocumentGuard::ZTXMLDocumentGuard(QIODevice* theSource, int theOuterDepth)
    : myDevice(new Device(theSource)), myDepth(theOuterDepth)
{}

ZTXMLDocumentGuard::~ZTXMLDocumentGuard() = default;

QIODevice* ZTXMLDocumentGuard::device() const
{
    return myDevice.get();
}

bool ZTXMLDocumentGuard::check(QXmlStreamReader& theReader)
{
    switch (theReader.tokenType()) {
    case QXmlStreamReader::StartElement:
        myRootSeen = true;
        if (++myDepth > maxDepth) {
            theReader.raiseError(QStringLiteral("elements nested deeper than %1 levels").arg(maxDepth));
            return false;
        }
        break;
    case QXmlStreamReader::EndElement:
        --myDepth;
        break;
    case QXmlStreamReader::DTD:
        // The whole-document parse refuses these; the stream refuses them the same way.
        if (myRootSeen) {
            theReader.raiseError(QStringLiteral("document type declaration after the root element began"));
            return false;
        }
        if (myDoctypeSeen) {
            theReader.raiseError(QStringLiteral("more than one document type declaration"));
            return false;
        }
        myDoctypeSeen = true;
        break;
    default:
        break;
    }
    return true;
}

bool ZTXMLDocumentGuard::failed(const QXmlStreamReader& theReader) const
{
    // A limit broken after the root element ends leaves the reader content with what it had.
    return theReader.hasError() || myDevice->breached();
}

QString ZTXMLDocumentGuard::errorString(const QXmlStreamReader& theReader) const
{
    if (myDevice->breached())
        return QStringLiteral("an element with more than %1 attributes").arg(maxAttributes);
    return theReader.errorString();
}

qint64 ZTXMLDocumentGuard::errorLine(const QXmlStreamReader& theReader) const
{
    return myDevice->breached() ? myDevice->line() : theReader.lineNumber();
}

qint64 ZTXMLDocumentGuard::errorColumn(const QXmlStreamReader& theReader) const
{
    return myDevice->breached() ? myDevice->column() : theReader.columnNumber();
}
