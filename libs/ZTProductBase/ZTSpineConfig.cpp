#include "ZTSpineConfig.h"

#include "ZTDiagnosticCollector.h"
#include "ZTProblemList.h"
#include "ZTSpineConfigImpl.h"
#include "ZTXMLParser.h"

#include <QCoreApplication>
#include <QDomElement>

#include <algorithm>

namespace {

// A non-negative length; missing gives 0 silently, malformed or negative 0 with a note for the
// article's warning. The parser gives its default for a malformed value without a word, so two
// reads with different defaults tell a malformed value from a good one.
ZTDistance readLength(const QDomElement& theSpine, const QString& theName, const ZTDistanceUnit& theUnit,
                      ZTProblemList* theProblems)
{
    if (!theSpine.hasAttribute(theName))
        return ZTDistance();
    const ZTDistance length = ZTXMLParser::readDistance(theSpine, theName, 0.0, theUnit);
    if (length != ZTXMLParser::readDistance(theSpine, theName, -1.0, theUnit)) {
        theProblems->append(
            QStringLiteral("%1=\"%2\" is no length").arg(theName, theSpine.attribute(theName)),
            QCoreApplication::translate("ZTSpineConfig", "%1=\"%2\" ist keine Länge")
                .arg(theName, theSpine.attribute(theName)));
        return ZTDistance();
    }
    if (length.pixels() < 0.0) {
        theProblems->append(QStringLiteral("%1=\"%2\" is negative").arg(theName, theSpine.attribute(theName)),
                            QCoreApplication::translate("ZTSpineConfig", "%1=\"%2\" ist negativ")
                                .arg(theName, theSpine.attribute(theName)));
        return ZTDistance();
    }
    return length;
}

int countLines(const QString& theText)
{
    QString text = theText;
    while (text.endsWith(QLatin1Char('\n')))
        text.chop(1);
    return std::max<int>(1, int(text.count(QLatin1Char('\n'))) + 1);
}

} // namespace

ZTSpineConfig::ZTSpineConfig() : myImpl(new ZTSpineConfigImpl)
{}

ZTSpineConfig::ZTSpineConfig(const ZTSpineConfig& other) = default;
ZTSpineConfig::ZTSpineConfig(ZTSpineConfig&& other) noexcept = default;
ZTSpineConfig& ZTSpineConfig::operator=(const ZTSpineConfig& other) = default;
ZTSpineConfig& ZTSpineConfig::operator=(ZTSpineConfig&& other) noexcept = default;
ZTSpineConfig::~ZTSpineConfig() = default;

ZTSpineConfig ZTSpineConfig::createFromProductsXML(const QDomElement& theArticle)
{
    ZTSpineConfig result;
    const QDomElement composition = theArticle.firstChildElement(QStringLiteral("composition"));
    const QDomElement spine = composition.firstChildElement(QStringLiteral("spine"));
    if (spine.isNull())
        return result;

    const ZTDistanceUnit unit(
        ZTXMLParser::attribute(composition, QStringLiteral("units"), QStringLiteral("mm"), true));
    ZTProblemList problems;
    ZTSpineConfigImpl* impl = result.myImpl.data();
    impl->myBaseWidth = readLength(spine, QStringLiteral("base_width"), unit, &problems);
    impl->myPageThickness = readLength(spine, QStringLiteral("page_thickness"), unit, &problems);
    impl->myMinWidth = readLength(spine, QStringLiteral("min_width"), unit, &problems);
    impl->myTextMargin = readLength(spine, QStringLiteral("text_margin"), unit, &problems);
    impl->myMinFontHeight = readLength(spine, QStringLiteral("min_font_height"), unit, &problems);
    impl->myMaxFontHeight = readLength(spine, QStringLiteral("max_font_height"), unit, &problems);
    impl->myCoverReduceSize =
        QSize(readLength(spine, QStringLiteral("cover_reduce_width"), unit, &problems).roundedPixels(),
              readLength(spine, QStringLiteral("cover_reduce_height"), unit, &problems).roundedPixels());
    if (!problems.isEmpty()) {
        qWarning().noquote() << "spine of article" << theArticle.attribute(QStringLiteral("id")) << ":"
                             << problems.logText();
        ZTDiagnosticCollector::report(
            ZTDiagnostic::Note, QCoreApplication::translate("ZTSpineConfig", "Buchrücken von Artikel %1: %2")
                                    .arg(theArticle.attribute(QStringLiteral("id")), problems.text()));
    }
    return result;
}

bool ZTSpineConfig::hasSpine() const
{
    return myImpl->myBaseWidth.pixels() > 0.0 || myImpl->myPageThickness.pixels() > 0.0 ||
           myImpl->myMinWidth.pixels() > 0.0;
}

ZTDistance ZTSpineConfig::spineWidth(unsigned int thePages) const
{
    const ZTDistance width = myImpl->myBaseWidth + myImpl->myPageThickness * double(thePages);
    return width < myImpl->myMinWidth ? myImpl->myMinWidth : width;
}

ZTDistance ZTSpineConfig::spineMaxFontHeigth(unsigned int thePages, const QString& theText) const
{
    const ZTDistance usable = spineWidth(thePages) - myImpl->myTextMargin * 2.0;
    ZTDistance height = usable * (1.0 / countLines(theText));
    if (myImpl->myMaxFontHeight.pixels() > 0.0 && myImpl->myMaxFontHeight < height)
        height = myImpl->myMaxFontHeight;
    if (height.pixels() <= 0.0 || height < myImpl->myMinFontHeight)
        return ZTDistance();
    return height;
}

QSize ZTSpineConfig::coverReduceSize() const
{
    return myImpl->myCoverReduceSize;
}

ZTDistance ZTSpineConfig::baseWidth() const
{
    return myImpl->myBaseWidth;
}

ZTDistance ZTSpineConfig::pageThickness() const
{
    return myImpl->myPageThickness;
}

ZTDistance ZTSpineConfig::minWidth() const
{
    return myImpl->myMinWidth;
}

ZTDistance ZTSpineConfig::textMargin() const
{
    return myImpl->myTextMargin;
}

ZTDistance ZTSpineConfig::minFontHeight() const
{
    return myImpl->myMinFontHeight;
}

ZTDistance ZTSpineConfig::maxFontHeight() const
{
    return myImpl->myMaxFontHeight;
}

void ZTSpineConfig::setBaseWidth(const ZTDistance& theWidth)
{
    myImpl->myBaseWidth = theWidth;
}

void ZTSpineConfig::setPageThickness(const ZTDistance& theThickness)
{
    myImpl->myPageThickness = theThickness;
}

void ZTSpineConfig::setMinWidth(const ZTDistance& theWidth)
{
    myImpl->myMinWidth = theWidth;
}

void ZTSpineConfig::setTextMargin(const ZTDistance& theMargin)
{
    myImpl->myTextMargin = theMargin;
}

void ZTSpineConfig::setFontHeightLimits(const ZTDistance& theMinimum, const ZTDistance& theMaximum)
{
    myImpl->myMinFontHeight = theMinimum;
    myImpl->myMaxFontHeight = theMaximum;
}

void ZTSpineConfig::setCoverReduceSize(const QSize& theSize)
{
    myImpl->myCoverReduceSize = theSize;
}

bool ZTSpineConfig::operator==(const ZTSpineConfig& other) const
{
    return myImpl == other.myImpl || *myImpl == *other.myImpl;
}
