#ifndef ZTAPMPRICEEXPLANATION_H
#define ZTAPMPRICEEXPLANATION_H

#include "ZTDiscountModel.h"
#include "ZTMoney.h"
#include "ztapm_export.h"

#include <QList>
#include <QPair>

class QDebug;

// Why an article costs what it costs: the model the price search chose, the amount in it, and
// what every candidate model of the article would have given, in ascending model value. A
// basket-wide transfer is chosen as the model without keyword (64). Where nothing prices, the
// amount is -1 and the chosen model is 0.
class ZTAPM_EXPORT ZTAPMPriceExplanation
{
public:
    using Candidate = QPair<ZTDiscountModel, ZTMoney>;

    // Nothing priced: model 0, amount -1, no candidates.
    ZTAPMPriceExplanation();
    ZTAPMPriceExplanation(const ZTDiscountModel& theChosenModel, const ZTMoney& theAmount,
                          const QList<Candidate>& theCandidates);
    ZTAPMPriceExplanation(const ZTAPMPriceExplanation& theOther);
    ZTAPMPriceExplanation& operator=(const ZTAPMPriceExplanation& theOther);
    ~ZTAPMPriceExplanation();

    const ZTDiscountModel& chosenModel() const { return myChosenModel; }
    const ZTMoney& amount() const { return myAmount; }
    const QList<Candidate>& candidates() const { return myCandidates; }

    bool operator==(const ZTAPMPriceExplanation& theOther) const;
    bool operator!=(const ZTAPMPriceExplanation& theOther) const;

private:
    ZTDiscountModel myChosenModel;
    ZTMoney myAmount;
    QList<Candidate> myCandidates;
};

ZTAPM_EXPORT QDebug operator<<(QDebug theDebug, const ZTAPMPriceExplanation& theExplanation);

#endif // ZTAPMPRICEEXPLANATION_H
