// bench_startup: how long the engine's start-up takes on a key account, next to how long it takes
// merely to parse the same documents with QDomDocument. Start-up reads the products document
// twice (into the registries and into the definitions store); prices and delivery times are read
// at their first question, which is timed as well.
//
// usage: bench_startup DIR   (a key account, e.g. one written by generate_keyaccount)

#include "ZTAPMDataBase.h"
#include "ZTAPMObjects.h"
#include "ZTArticleId.h"
#include "ZTInitializer.h"
#include "ZTProductRegistry.h"
#include "ZTProgramConfig.h"

#include <QCoreApplication>
#include <QDir>
#include <QDomDocument>
#include <QElapsedTimer>
#include <QFile>

#include <algorithm>
#include <cstdio>

namespace {

// Only warnings and worse; the engine's info lines would distort nothing but the output.
void quietMessages(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

// Reading the file, building the whole tree and freeing it again, as the data base's reading of
// the products does (the stores stream theirs); the best of three runs.
qint64 parseMilliseconds(const QString& thePath)
{
    qint64 best = -1;
    for (int run = 0; run < 3; ++run) {
        QElapsedTimer timer;
        timer.start();
        {
            QFile file(thePath);
            if (!file.open(QIODevice::ReadOnly))
                return -1;
            QDomDocument document;
            if (!document.setContent(&file))
                return -1;
        }
        const qint64 elapsed = timer.elapsed();
        best = best < 0 ? elapsed : std::min(best, elapsed);
    }
    return best;
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2 || !QFileInfo(arguments.at(1)).isDir()) {
        std::fprintf(stderr, "usage: bench_startup DIR\n");
        return 2;
    }
    qInstallMessageHandler(quietMessages);
    const QDir dir(QFileInfo(arguments.at(1)).absoluteFilePath());

    const qint64 parseProducts = parseMilliseconds(dir.filePath(QStringLiteral("products.xml")));
    const qint64 parsePrices = parseMilliseconds(dir.filePath(QStringLiteral("prices.xml")));
    const qint64 parseDeliveryTimes = parseMilliseconds(dir.filePath(QStringLiteral("deliverytimes.xml")));
    if (parseProducts < 0 || parsePrices < 0 || parseDeliveryTimes < 0) {
        std::fprintf(stderr, "bench_startup: %s holds no readable key account\n", qPrintable(dir.path()));
        return 3;
    }

    ZTSingleton<ZTProgramConfig>::instance()->setKeyAccountDirectory(dir.path());
    QElapsedTimer timer;
    timer.start();
    ZTSingleton<ZTInitializer>::instance()->setupAll();
    const qint64 startUp = timer.restart();
    // Any article will do: the first question loads the whole document.
    const ZTArticleId someArticle(100000);
    ZTSingleton<ZTAPMObjects>::instance()->priceInfo(someArticle);
    const qint64 firstPrice = timer.restart();
    ZTSingleton<ZTAPMObjects>::instance()->deliveryTimes(someArticle);
    const qint64 firstDeliveryTime = timer.restart();

    const int products = ZTSingleton<ZTAPMDataBase>::instance()->products()->productCount();
    std::printf("key account: %s, %d products registered\n", qPrintable(dir.path()), products);
    std::printf("%-44s %8s\n", "", "ms");
    std::printf("%-44s %8lld\n", "QDomDocument parse of products.xml", parseProducts);
    std::printf("%-44s %8lld\n", "engine start-up (reads products.xml twice)", startUp);
    std::printf("%-44s %8lld\n", "QDomDocument parse of prices.xml", parsePrices);
    std::printf("%-44s %8lld\n", "first price question (loads prices.xml)", firstPrice);
    std::printf("%-44s %8lld\n", "QDomDocument parse of deliverytimes.xml", parseDeliveryTimes);
    std::printf("%-44s %8lld\n", "first delivery time question", firstDeliveryTime);
    return 0;
}
