#include "ZTPaymentId.h"

#include "ZTXMLParser.h"

#include <QDebug>

ZTPaymentId::ZTPaymentId() = default;

ZTPaymentId::ZTPaymentId(int theId) : myId(theId)
{}

ZTPaymentId::ZTPaymentId(const QString& theText)
{
    bool ok = false;
    const int value = ZTXMLParser::fastDecodeInt(theText, &ok);
    if (ok)
        myId = value;
}

QString ZTPaymentId::toString() const
{
    return QString::number(myId);
}

QDebug operator<<(QDebug debug, const ZTPaymentId& theId)
{
    QDebugStateSaver saver(debug);
    debug.nospace() << "ZTPaymentId(" << theId.id() << ')';
    return debug;
}
