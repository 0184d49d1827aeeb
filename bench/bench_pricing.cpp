// bench_pricing: how long one price question takes. Every article of a key account is priced for
// 1, 10 and 100 pieces in each order source, once through its product (which fetches the
// article's price info from the store at each call) and once on price infos fetched beforehand
// (the price models alone).
//
// usage: bench_pricing DIR   (a key account, e.g. one written by generate_keyaccount)

#include "ZTAPMArticlePriceInfo.h"
#include "ZTAPMDataBase.h"
#include "ZTAPMObjects.h"
#include "ZTInitializer.h"
#include "ZTProductAbstract.h"
#include "ZTProgramConfig.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>

#include <cstdio>
#include <vector>

namespace {

void quietMessages(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

const char* sourceName(const ZTOrderSource& theSource)
{
    if (theSource == ZTOrderSource::onlineMailOrder())
        return "online, mail order";
    if (theSource == ZTOrderSource::onlinePointOfSale())
        return "online, point of sale";
    return "CD, point of sale";
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
    qInstallMessageHandler(quietMessages);
    ZTSingleton<ZTProgramConfig>::instance()->setKeyAccountDirectory(
        QFileInfo(arguments.at(1)).absoluteFilePath());
    ZTSingleton<ZTInitializer>::instance()->setupAll();

    // The generator numbers its articles from 100000 on, without gaps.
    const ZTAPMDataBase* catalogue = ZTSingleton<ZTAPMDataBase>::instance();
    std::vector<const ZTProductAbstract*> products;
    for (qint32 id = 100000;; ++id) {
        const ZTProductAbstract* product = catalogue->productAbstract(ZTArticleId(id));
        if (!product)
            break;
        products.push_back(product);
    }
    if (products.empty()) {
        std::fprintf(stderr, "bench_pricing: %s holds no products\n", qPrintable(arguments.at(1)));
        return 3;
    }
    std::vector<ZTAPMArticlePriceInfo> infos;
    infos.reserve(products.size());
    for (const ZTProductAbstract* product : products)
        infos.push_back(product->priceInfo());

    std::printf("%zu articles, time per priceFor in ns\n", products.size());
    std::printf("%-24s %6s %14s %14s %10s\n", "order source", "pieces", "via product", "models only",
                "priced");
    qint64 checksum = 0;
    for (const ZTOrderSource& source : ZTOrderSource::all()) {
        const ZTAPMPriceKey key(source);
        for (int count : {1, 10, 100}) {
            QElapsedTimer timer;
            timer.start();
            int priced = 0;
            for (const ZTProductAbstract* product : products) {
                const ZTMoney price = product->priceFor(key, count, ZTMoney(0), nullptr, nullptr);
                priced += price.isValid() ? 1 : 0;
                checksum += price.value();
            }
            const qint64 viaProduct = timer.nsecsElapsed();
            timer.restart();
            for (const ZTAPMArticlePriceInfo& info : infos)
                checksum += info.priceFor(key, count, ZTMoney(0), nullptr, nullptr).value();
            const qint64 modelsOnly = timer.nsecsElapsed();
            const qint64 n = qint64(products.size());
            std::printf("%-24s %6d %14lld %14lld %10d\n", sourceName(source), count, viaProduct / n,
                        modelsOnly / n, priced);
        }
    }
    // Printed so that no loop can be optimised away.
    std::printf("checksum %lld\n", checksum);
    return 0;
}
