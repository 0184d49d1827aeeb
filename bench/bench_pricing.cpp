// bench_pricing: how long one price question takes. Every article of a key account is priced for
// 1, 10 and 100 pieces in each order source, once through its product (which fetches the
// article's price info from the store at each call) and once on price infos fetched beforehand
// (the price models alone).
//
// usage: bench_pricing DIR   (a key account, e.g. one written by generate_keyaccount)

#include "ZTAPMArticlePriceInfo.h"
#include "ZTAPMObjects.h"
#include "ZTBenchKeyAccount.h"
#include "ZTProductAbstract.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>

#include <cstdio>
#include <vector>

#include <time.h>

namespace {

const char* sourceName(const ZTOrderSource& theSource)
{
    if (theSource == ZTOrderSource::onlineMailOrder())
        return "online, mail order";
    if (theSource == ZTOrderSource::onlinePointOfSale())
        return "online, point of sale";
    return "CD, point of sale";
}

// CPU time of this thread: on a machine shared with other work, wall time counts the waits for a
// core as well.
qint64 threadNanoseconds()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return qint64(time.tv_sec) * 1000000000 + time.tv_nsec;
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2 || !QFileInfo(arguments.at(1)).isDir()) {
        std::fprintf(stderr, "usage: bench_pricing DIR\n");
        return 2;
    }
    ZTBenchKeyAccount::startEngine(arguments.at(1));
    const std::vector<ZTProductAbstract*> products = ZTBenchKeyAccount::products();
    if (products.empty()) {
        std::fprintf(stderr, "bench_pricing: %s holds no products\n", qPrintable(arguments.at(1)));
        return 3;
    }
    std::vector<ZTAPMArticlePriceInfo> infos;
    infos.reserve(products.size());
    for (const ZTProductAbstract* product : products)
        infos.push_back(product->priceInfo());

    std::printf("%zu articles, time per priceFor in ns (wall, and CPU time of the thread)\n",
                products.size());
    std::printf("%-24s %6s %12s %10s %12s %10s %8s\n", "order source", "pieces", "via product", "CPU",
                "models only", "CPU", "priced");
    qint64 checksum = 0;
    for (const ZTOrderSource& source : ZTOrderSource::all()) {
        const ZTAPMPriceKey key(source);
        for (int count : {1, 10, 100}) {
            QElapsedTimer timer;
            timer.start();
            qint64 cpu = threadNanoseconds();
            int priced = 0;
            for (const ZTProductAbstract* product : products) {
                const ZTMoney price = product->priceFor(key, count, ZTMoney(0), nullptr, nullptr);
                priced += price.isValid() ? 1 : 0;
                checksum += price.value();
            }
            const qint64 viaProduct = timer.nsecsElapsed();
            const qint64 viaProductCpu = threadNanoseconds() - cpu;
            timer.restart();
            cpu = threadNanoseconds();
            for (const ZTAPMArticlePriceInfo& info : infos)
                checksum += info.priceFor(key, count, ZTMoney(0), nullptr, nullptr).value();
            const qint64 modelsOnly = timer.nsecsElapsed();
            const qint64 modelsOnlyCpu = threadNanoseconds() - cpu;
            const qint64 n = qint64(products.size());
            std::printf("%-24s %6d %12lld %10lld %12lld %10lld %8d\n", sourceName(source), count,
                        viaProduct / n, viaProductCpu / n, modelsOnly / n, modelsOnlyCpu / n, priced);
        }
    }
    // Printed so that no loop can be optimised away.
    std::printf("checksum %lld\n", checksum);
    return 0;
}
