#include "ZTAPMBillReconciliation.h"

#include "ZTAPMBill.h"
#include "ZTAPMBillPosition.h"
#include "ZTAPMDataBase.h"
#include "ZTAPMOrderQuote.h"
#include "ZTOrderCalculationResult.h"
#include "ZTProductAbstract.h"
#include "ZTStringHelper.h"

#include <QMap>

#include <algorithm>

namespace {

// One line of one side: absent until an amount is added.
struct Side
{
    ZTMoney amount = ZTMoney(ZTMoney::notSet);
    ZTDiscountModel model;
    int level = -1;

    void add(const ZTMoney& theAmount, const ZTDiscountModel& theModel, int theLevel)
    {
        if (amount == ZTMoney(ZTMoney::notSet)) {
            amount = theAmount;
            model = theModel;
            level = theLevel;
        } else {
            amount += theAmount;
        }
    }
};

using Articles = QMap<ZTArticleId, Side>;

const ZTArticleClass& goods()
{
    static const ZTArticleClass theGoods(ZTArticleClassEnum(ZTArticleClassAll & ~ZTArticleClassAllFees));
    return theGoods;
}

ZTAPMDataBase* dataBase()
{
    return ZTSingleton<ZTAPMDataBase>::instance();
}

Articles localArticles(const ZTAPMBill* theBill)
{
    Articles articles;
    if (!theBill)
        return articles;
    for (const ZTAPMBillPositionAbstract* position : theBill->billPositions(goods())) {
        const ZTProductAbstract* product = position->product();
        articles[product ? product->articleId() : ZTArticleId()].add(
            position->positionPrice(), position->discountModel(), position->discountLevel());
    }
    return articles;
}

Articles serverArticles(const ZTOCRBill& theBill)
{
    Articles articles;
    for (const ZTOCRBillPosition& position : theBill.positions()) {
        ZTMoney amount = position.price();
        amount *= position.quantity();
        articles[position.articleId()].add(amount, position.discountModel(), position.discountLevel());
        for (const ZTOCRBillPositionPart& part : position.orderParts()) {
            ZTMoney partAmount = part.totalPrice();
            partAmount *= position.quantity();
            articles[part.articleId()].add(partAmount, ZTDiscountModel(), -1);
        }
    }
    return articles;
}

// In the product order of the editor, numbers in names compared as numbers; equal names, and
// articles the catalogue does not know, by id.
QList<ZTArticleId> articlesInOrder(const Articles& theLocal, const Articles& theServer)
{
    QList<ZTArticleId> ids = theLocal.keys();
    for (auto it = theServer.cbegin(); it != theServer.cend(); ++it) {
        if (!theLocal.contains(it.key()))
            ids.append(it.key());
    }
    QMap<ZTArticleId, QString> names;
    for (const ZTArticleId& id : std::as_const(ids)) {
        const ZTProductAbstract* product = dataBase()->productAbstract(id);
        names.insert(id, product ? product->editorName() : QString());
    }
    std::sort(ids.begin(), ids.end(), [&names](const ZTArticleId& theLeft, const ZTArticleId& theRight) {
        const QString& left = names[theLeft];
        const QString& right = names[theRight];
        if (left == right)
            return theLeft < theRight;
        return ZTStringHelper::numberAwareProductNameLessThan(left, right);
    });
    return ids;
}

// A fee position of the local bill: its price, model and level, and its article; 0 without one.
Side localFee(const ZTAPMBill* theBill, const ZTProductAbstract* theProduct, ZTArticleId* theArticle)
{
    Side side;
    if (!theBill)
        return side;
    const ZTAPMBillPosition* position = theProduct ? theBill->billPosition(theProduct) : nullptr;
    if (!position) {
        side.add(ZTMoney(0), ZTDiscountModel(), -1);
        return side;
    }
    *theArticle = theProduct->articleId();
    side.add(position->positionPrice(), position->discountModel(), position->discountLevel());
    return side;
}

ZTMoney taxes(const ZTOCRBill& theBill)
{
    ZTMoney result(0);
    if (theBill.salesTaxIsValid())
        result += theBill.salesTaxValue();
    if (theBill.provincialSalesTaxIsValid())
        result += theBill.provincialSalesTax();
    return result;
}

} // namespace

ZTAPMBillReconciliation::ZTAPMBillReconciliation(const ZTAPMOrderQuote& theLocal,
                                                 const ZTOrderCalculationResult& theServer)
{
    QList<ZTShippingGroupId> groups;
    for (const ZTAPMBill* bill : theLocal.bills())
        groups.append(bill->shippingGroup());
    for (const ZTOCRBill& bill : theServer.bills()) {
        if (!groups.contains(bill.shippingGroupId()))
            groups.append(bill.shippingGroupId());
    }
    std::sort(groups.begin(), groups.end());

    ZTMoney localProducts(0);
    ZTMoney localTransfers(0);
    ZTMoney serverShipment(0);
    ZTArticleId shipmentArticle;
    for (const ZTShippingGroupId& group : std::as_const(groups)) {
        const ZTAPMBill* local = theLocal.bill(group);
        const ZTOCRBill server = theServer.bill(group);
        const bool serverHasBill = server.isValid();

        const Articles localLines = localArticles(local);
        const Articles serverLines = serverArticles(server);
        for (const ZTArticleId& article : articlesInOrder(localLines, serverLines)) {
            ZTAPMBillDifference line(ZTAPMBillDifference::Position, group, article);
            const Side localSide = localLines.value(article);
            const Side serverSide = serverLines.value(article);
            line.setLocal(localSide.amount, localSide.model, localSide.level);
            line.setServer(serverSide.amount, serverSide.model, serverSide.level);
            add(line);
        }

        // The transfer, the express fee and the payment fee.
        const struct
        {
            ZTAPMBillDifference::Kind kind;
            const ZTProductAbstract* localProduct;
            ZTArticleId serverArticle;
            ZTMoney serverPrice;
            ZTDiscountModel serverModel;
            int serverLevel;
        } fees[] = {{ZTAPMBillDifference::Transfer, local ? local->transferProduct() : nullptr,
                     server.transfer().articleId(), server.transferFee(), server.transfer().discountModel(),
                     server.transfer().discountLevel()},
                    {ZTAPMBillDifference::ExpressFee, local ? local->expressProduct() : nullptr,
                     server.expressFeeItem().articleId(), server.expressFee(),
                     server.expressFeeItem().discountModel(), server.expressFeeItem().discountLevel()},
                    {ZTAPMBillDifference::PaymentFee, local ? local->paymentProduct() : nullptr,
                     server.paymentFeeItem().articleId(), server.paymentFee(), ZTDiscountModel(), -1}};
        for (const auto& fee : fees) {
            ZTArticleId article;
            const Side localSide = localFee(local, fee.localProduct, &article);
            if (!article.isValid() && serverHasBill)
                article = fee.serverArticle;
            ZTAPMBillDifference line(fee.kind, group, article);
            line.setLocal(localSide.amount, localSide.model, localSide.level);
            // A fee the server did not charge names no row.
            if (serverHasBill && fee.serverArticle.isValid())
                line.setServer(fee.serverPrice, fee.serverModel, fee.serverLevel);
            else if (serverHasBill)
                line.setServer(fee.serverPrice);
            add(line);
            if (fee.kind == ZTAPMBillDifference::Transfer && local)
                localTransfers += localSide.amount;
        }

        ZTAPMBillDifference total(ZTAPMBillDifference::BillTotal, group, ZTArticleId());
        if (local) {
            total.setLocal(local->totalFinalCost());
            localProducts += local->totalItemCost(goods());
        }
        if (serverHasBill) {
            ZTMoney serverTotal = server.subTotalValue();
            serverTotal += server.coupons().totalValue();
            serverTotal -= server.shipmentFee();
            total.setServer(serverTotal);
            serverShipment += server.shipmentFee();
            if (!shipmentArticle.isValid())
                shipmentArticle = server.shipmentFeeItem().articleId();
        }
        add(total);
    }

    // The whole order.
    const ZTProductAbstract* shipmentProduct =
        dataBase()->shipmentMethodFeeProduct(theLocal.apmStatus().shipmentMethod().id());
    ZTAPMBillDifference shipment(ZTAPMBillDifference::ShipmentFee, ZTShippingGroupId(),
                                 shipmentProduct ? shipmentProduct->articleId() : shipmentArticle);
    shipment.setLocal(theLocal.shipmentFee());
    shipment.setServer(serverShipment);
    add(shipment);

    ZTMoney serverTotal = theServer.totalBillSum();
    serverTotal += theServer.totalCouponSum();
    for (const ZTOCRBill& bill : theServer.bills())
        serverTotal -= taxes(bill);
    const struct
    {
        ZTAPMBillDifference::Kind kind;
        ZTMoney local;
        ZTMoney server;
    } totals[] = {{ZTAPMBillDifference::ProductsTotal, localProducts, theServer.totalProductsSum()},
                  {ZTAPMBillDifference::TransferTotal, localTransfers, theServer.totalTransfer()},
                  {ZTAPMBillDifference::Total, theLocal.totalFinalCost(), serverTotal}};
    for (const auto& sum : totals) {
        ZTAPMBillDifference line(sum.kind, ZTShippingGroupId(), ZTArticleId());
        line.setLocal(sum.local);
        line.setServer(sum.server);
        add(line);
    }
}

void ZTAPMBillReconciliation::add(const ZTAPMBillDifference& theLine)
{
    ++myComparedLines;
    if (theLine.differs())
        myDifferences.append(theLine);
}
