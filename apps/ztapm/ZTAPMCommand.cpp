#include "ZTAPMCommand.h"

#include "ZTAPMDataBase.h"
#include "ZTArticleIdSet.h"
#include "ZTDiscountModel.h"
#include "ZTMoney.h"
#include "ZTOrderSource.h"
#include "ZTProductAbstract.h"
#include "ZTProgramConfig.h"
#include "ZTShippingGroupId.h"

#include <QCoreApplication>
#include <QMutex>
#include <QTextStream>

#include <algorithm>
#include <cstdio>

namespace {

// Readers may log from more than one thread.
QMutex theLogMutex;
QStringList theWarnings;
bool theVerboseLog = false;
bool theWarningsShown = true;

} // namespace

ZTAPMCommand::ZTAPMCommand() = default;

ZTAPMCommand::~ZTAPMCommand() = default;

QList<QCommandLineOption> ZTAPMCommand::options() const
{
    return {};
}

bool ZTAPMCommand::needsGuiApplication() const
{
    return false;
}

void ZTAPMCommand::collectMessage(QtMsgType theType, const QMessageLogContext&, const QString& theMessage)
{
    QMutexLocker locker(&theLogMutex);
    const bool warning = theType == QtWarningMsg || theType == QtCriticalMsg || theType == QtFatalMsg;
    if (warning)
        theWarnings.append(theMessage);
    if (!theVerboseLog && !(warning && theWarningsShown))
        return;
    std::fprintf(stderr, "%s\n", qPrintable(theMessage));
}

void ZTAPMCommand::setVerbose(bool theVerbose)
{
    theVerboseLog = theVerbose;
}

void ZTAPMCommand::setWarningsShown(bool theShown)
{
    QMutexLocker locker(&theLogMutex);
    theWarningsShown = theShown;
}

int ZTAPMCommand::exitStatus(const QJsonObject&) const
{
    return Success;
}

QString ZTAPMCommand::orderSourceName(const ZTOrderSource& theSource)
{
    return (theSource.inputSource() == ZTInputSourceCD ? QStringLiteral("cd-") : QStringLiteral("online-")) +
           (theSource.isMailOrder() ? QStringLiteral("mail") : QStringLiteral("pos"));
}

ZTOrderSource ZTAPMCommand::orderSourceNamed(const QString& theName)
{
    for (const ZTOrderSource& source : ZTOrderSource::all()) {
        if (theName.compare(orderSourceName(source), Qt::CaseInsensitive) == 0 ||
            theName.compare(source.toLogString(), Qt::CaseInsensitive) == 0)
            return source;
    }
    return ZTOrderSource();
}

ZTOrderSource ZTAPMCommand::defaultOrderSource()
{
    return ZTOrderSource::onlineMailOrder();
}

QString ZTAPMCommand::orderSourcesHelp()
{
    QStringList names;
    for (const ZTOrderSource& source : ZTOrderSource::all())
        names.append((source == defaultOrderSource() ? tr("%1 (%2, default)") : QStringLiteral("%1 (%2)"))
                         .arg(orderSourceName(source), source.toLogString()));
    return names.join(QStringLiteral(", "));
}

QString ZTAPMCommand::joined(const QStringList& theItems, const QString& theLastJoint)
{
    if (theItems.size() < 2)
        return theItems.join(QString());
    return theItems.mid(0, theItems.size() - 1).join(QStringLiteral(", ")) + QLatin1Char(' ') + theLastJoint +
           QLatin1Char(' ') + theItems.last();
}

int ZTAPMCommand::fail(ExitStatus theStatus, const QString& theMessage)
{
    std::fprintf(stderr, "%s: %s\n", qPrintable(QCoreApplication::applicationName()), qPrintable(theMessage));
    return theStatus;
}

int ZTAPMCommand::noArguments(const QStringList& theArguments) const
{
    if (theArguments.isEmpty())
        return Success;
    return fail(UsageError, tr("%1 takes no arguments").arg(name()));
}

int ZTAPMCommand::readArticleId(const QString& theText, int* theId)
{
    bool ok = false;
    *theId = theText.toInt(&ok);
    if (!ok || *theId <= 0)
        return fail(UsageError, tr("'%1' is no article id").arg(theText));
    return Success;
}

ZTProductAbstract* ZTAPMCommand::findProduct(int theId, int* theStatus)
{
    ZTProductAbstract* product = ZTSingleton<ZTAPMDataBase>::instance()->productAbstract(ZTArticleId(theId));
    *theStatus =
        product ? Success
                : fail(NotFound, tr("article %1 does not exist in %2").arg(theId).arg(keyAccountDirectory()));
    return product;
}

QString ZTAPMCommand::keyAccountDirectory()
{
    return ZTSingleton<ZTProgramConfig>::instance()->keyAccountDirectory();
}

QStringList ZTAPMCommand::warnings()
{
    QMutexLocker locker(&theLogMutex);
    return theWarnings;
}

QJsonValue ZTAPMCommand::amountJson(const ZTMoney& theAmount)
{
    if (theAmount.value() == ZTMoney::notSet)
        return QJsonValue(QJsonValue::Null);
    return theAmount.value();
}

QString ZTAPMCommand::amountText(const QJsonValue& theAmount)
{
    if (theAmount.isNull())
        return QStringLiteral("-");
    const qint64 value = theAmount.toInteger();
    if (value == ZTMoney::noPrice)
        return tr("no price");
    // In the key account's currency; a key account without a currency it describes gets units
    // and hundredths, computed on the integer: no floating point touches an amount.
    const QString text = ZTMoney(int(value)).fullText();
    if (!text.isEmpty())
        return text;
    const qint64 magnitude = value < 0 ? -value : value;
    return QStringLiteral("%1%2.%3")
        .arg(value < 0 ? QStringLiteral("-") : QString())
        .arg(magnitude / 100)
        .arg(magnitude % 100, 2, 10, QLatin1Char('0'));
}

QString ZTAPMCommand::modelName(const ZTDiscountModel& theModel)
{
    if (theModel.value() == ZTDiscountModelBasketTransfer)
        return QStringLiteral("basket");
    return theModel.encode();
}

QJsonValue ZTAPMCommand::groupJson(const ZTShippingGroupId& theGroup)
{
    return theGroup.isValid() ? QJsonValue(theGroup.id()) : QJsonValue(QJsonValue::Null);
}

QString ZTAPMCommand::groupText(const QJsonValue& theGroup)
{
    return theGroup.isNull() ? QStringLiteral("-") : QString::number(theGroup.toInt());
}

QJsonArray ZTAPMCommand::idsJson(const ZTArticleIdSet& theIds)
{
    QList<int> ids;
    for (const ZTArticleId& id : theIds)
        ids.append(id.id());
    std::sort(ids.begin(), ids.end());
    QJsonArray result;
    for (int id : std::as_const(ids))
        result.append(id);
    return result;
}

void ZTAPMCommand::writeColumns(QTextStream& theOut, const QStringList& theCells, const QList<int>& theWidths)
{
    for (int i = 0; i < theCells.size(); ++i) {
        const int width = theWidths.value(i, 0);
        theOut << (width > 0 ? theCells.at(i).leftJustified(width) : theCells.at(i));
        if (i + 1 < theCells.size())
            theOut << ' ';
    }
    theOut << '\n';
}
