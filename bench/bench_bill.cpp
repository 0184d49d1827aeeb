// bench_bill: how long one basket takes from products to bills. A basket of 50 lines over the
// three largest shipping groups of a key account is split by group and billed, as a host does it
// for its display, many times over; the median time per basket is reported.
//
// usage: bench_bill DIR   (a key account, e.g. one written by generate_keyaccount)

#include "ZTAPMBill.h"
#include "ZTBenchKeyAccount.h"
#include "ZTProductAbstract.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QMap>

#include <algorithm>
#include <cstdio>
#include <vector>

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2 || !QFileInfo(arguments.at(1)).isDir()) {
        std::fprintf(stderr, "usage: bench_bill DIR\n");
        return 2;
    }
    ZTBenchKeyAccount::startEngine(arguments.at(1));
    QMap<ZTShippingGroupId, std::vector<ZTProductAbstract*>> byGroup;
    for (ZTProductAbstract* product : ZTBenchKeyAccount::products())
        byGroup[product->shippingGroupId()].push_back(product);
    std::vector<ZTShippingGroupId> groups(byGroup.keyBegin(), byGroup.keyEnd());
    std::stable_sort(groups.begin(), groups.end(),
                     [&](const ZTShippingGroupId& a, const ZTShippingGroupId& b) {
                         return byGroup.value(a).size() > byGroup.value(b).size();
                     });
    if (groups.size() < 3) {
        std::fprintf(stderr, "bench_bill: %s has fewer than three shipping groups\n",
                     qPrintable(arguments.at(1)));
        return 3;
    }

    // 50 lines: 17, 17 and 16 articles of the three groups, 1 to 5 pieces each.
    ZTAPMOrderStatistic basket;
    for (int line = 0; line < 50; ++line) {
        const std::vector<ZTProductAbstract*>& products = byGroup.value(groups.at(line % 3));
        basket.add(products.at(std::size_t(line / 3 * 7) % products.size()), 1 + line % 5);
    }
    ZTAPMStatus status;
    status.setReasonableStartingShipmentMethod();

    const int rounds = 2000;
    std::vector<qint64> times;
    times.reserve(rounds);
    qint64 checksum = 0;
    int positions = 0;
    for (int round = 0; round < rounds; ++round) {
        QElapsedTimer timer;
        timer.start();
        const auto statistics = ZTAPMBill::shippingGroupStatistics(basket);
        for (auto group = statistics.cbegin(); group != statistics.cend(); ++group) {
            const ZTAPMBill bill(group.key(), status, ZTExpressType(ZTExpressTypeExpress), group.value());
            checksum += bill.totalFinalCost().value();
            positions = round == 0 ? positions + int(bill.size()) : positions;
        }
        times.push_back(timer.nsecsElapsed());
    }
    std::sort(times.begin(), times.end());
    std::printf("basket of 50 lines in %d groups, %d positions; per basket in us: median %.1f, "
                "fastest %.1f, 90th percentile %.1f\n",
                int(ZTAPMBill::shippingGroupStatistics(basket).size()), positions,
                times.at(rounds / 2) / 1000.0, times.front() / 1000.0, times.at(rounds * 9 / 10) / 1000.0);
    // Printed so that no loop can be optimised away.
    std::printf("checksum %lld\n", checksum);
    return 0;
}
