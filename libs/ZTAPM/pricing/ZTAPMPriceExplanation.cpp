#include "ZTAPMPriceExplanation.h"

#include <QDebug>

ZTAPMPriceExplanation::ZTAPMPriceExplanation() : myAmount(ZTMoney::noPrice)
{}

ZTAPMPriceExplanation::ZTAPMPriceExplanation(const ZTDiscountModel& theChosenModel, const ZTMoney& theAmount,
                                             const QList<Candidate>& theCandidates)
    : myChosenModel(theChosenModel), myAmount(theAmount), myCandidates(theCandidates)
{}

ZTAPMPriceExplanation::ZTAPMPriceExplanation(const ZTAPMPriceExplanation& theOther) = default;
ZTAPMPriceExplanation& ZTAPMPriceExplanation::operator=(const ZTAPMPriceExplanation& theOther) = default;
ZTAPMPriceExplanation::~ZTAPMPriceExplanation() = default;

bool ZTAPMPriceExplanation::operator==(const ZTAPMPriceExplanation& theOther) const
{
    return myChosenModel == theOther.myChosenModel && myAmount == theOther.myAmount &&
           myCandidates == theOther.myCandidates;
}

bool ZTAPMPriceExplanation::operator!=(const ZTAPMPriceExplanation& theOther) const
{
    return !(*this == theOther);
}

QDebug operator<<(QDebug theDebug, const ZTAPMPriceExplanation& theExplanation)
{
    QDebugStateSaver saver(theDebug);
    theDebug.nospace() << "ZTAPMPriceExplanation(" << theExplanation.chosenModel() << ", "
                       << theExplanation.amount();
    for (const ZTAPMPriceExplanation::Candidate& candidate : theExplanation.candidates())
        theDebug << ", " << candidate.first << '=' << candidate.second;
    theDebug << ')';
    return theDebug;
}
