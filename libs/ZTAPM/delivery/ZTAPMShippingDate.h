#ifndef ZTAPMSHIPPINGDATE_H
#define ZTAPMSHIPPINGDATE_H

#include "ZTDateRange.h"
#include "ztapm_export.h"

#include <QCoreApplication>
#include <QDate>
#include <QString>

class QDomElement;

// The calendar days within which an order is expected to arrive, as the server computed them for
// one bill and express type.
class ZTAPM_EXPORT ZTAPMShippingDate
{
    Q_DECLARE_TR_FUNCTIONS(ZTAPMShippingDate)

public:
    ZTAPMShippingDate();
    // A shipping_time element with the ISO date-times min and max; without min the date is
    // invalid, without max it is the single day of min.
    explicit ZTAPMShippingDate(const QDomElement& theElement);
    ZTAPMShippingDate(const ZTAPMShippingDate& other);
    ZTAPMShippingDate& operator=(const ZTAPMShippingDate& other);
    virtual ~ZTAPMShippingDate();

    bool operator==(const ZTAPMShippingDate& other) const;

    QDate minDate() const;
    QDate maxDate() const;
    bool isValid() const;
    bool varies() const;

    // "Voraussichtliches Lieferdatum: <nobr><b>date</b></nobr>" in the default locale's long
    // form, with a line break instead of the blank on request; empty for an invalid date.
    QString createShippingDateHint(bool theWithLineBreak) const;

private:
    ZTDateRange myDateRange;
};

#endif // ZTAPMSHIPPINGDATE_H
