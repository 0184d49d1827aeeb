#include "ZTBenchKeyAccount.h"

#include "ZTAPMDataBase.h"
#include "ZTInitializer.h"
#include "ZTProgramConfig.h"

#include <QFileInfo>

#include <cstdio>

namespace {

void quietMessages(QtMsgType theType, const QMessageLogContext&, const QString& theMessage)
{
    if (theType != QtDebugMsg && theType != QtInfoMsg)
        std::fprintf(stderr, "%s\n", qPrintable(theMessage));
}

} // namespace

const ZTArticleId ZTBenchKeyAccount::firstArticle(100000);

void ZTBenchKeyAccount::quietLog()
{
    qInstallMessageHandler(quietMessages);
}

void ZTBenchKeyAccount::useKeyAccount(const QString& theDirectory)
{
    quietLog();
    ZTSingleton<ZTProgramConfig>::instance()->setKeyAccountDirectory(
        QFileInfo(theDirectory).absoluteFilePath());
}

void ZTBenchKeyAccount::startEngine(const QString& theDirectory)
{
    useKeyAccount(theDirectory);
    ZTSingleton<ZTInitializer>::instance()->setupAll();
}

std::vector<ZTProductAbstract*> ZTBenchKeyAccount::products()
{
    const ZTAPMDataBase* catalogue = ZTSingleton<ZTAPMDataBase>::instance();
    std::vector<ZTProductAbstract*> result;
    for (qint32 id = firstArticle.id();; ++id) {
        ZTProductAbstract* product = catalogue->productAbstract(ZTArticleId(id));
        if (!product)
            return result;
        result.push_back(product);
    }
}
