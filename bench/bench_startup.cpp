// bench_startup: what a user waits for when the engine starts on a key account, next to what it
// takes merely to parse the same three documents with QDomDocument. Each measurement is a process
// of its own, started cold: the engine's start-up plus the first price question (which loads the
// prices) in one, the bare parse of products, prices and delivery times in the other. The two
// alternate, so that a change in the machine's load meets both alike; the medians of wall time and
// of peak resident memory (from the kernel's accounting of the finished child) are printed with
// their ratio. A third process runs the catalogue check of ztapm check, which reads every document
// whole and should take no longer than the start-up.
//
// usage: bench_startup [--runs N] DIR...   (key accounts, e.g. written by generate_keyaccount)
//        bench_startup engine DIR          (one start-up, as the runner starts it)
//        bench_startup dom DIR             (one bare parse, as the runner starts it)
//        bench_startup reload DIR          (start-up, then a change of key account to DIR again)
//        bench_startup check DIR           (one catalogue check, as the runner starts it)
//
// Columns: engine and DOM are the medians of the two processes' wall time and peak resident
// memory; start and price the engine's own split of its time, in ms; reload what a change of key
// account costs the registries, stores what reading the three stores anew costs, in ms; check
// the catalogue check's wall time and its ratio to the engine's.

#include "ZTAPMCatalogueCheck.h"
#include "ZTAPMDataBase.h"
#include "ZTAPMObjects.h"
#include "ZTAPMPriceKey.h"
#include "ZTArticleId.h"
#include "ZTBenchKeyAccount.h"
#include "ZTInitializer.h"
#include "ZTKeyAccount.h"
#include "ZTMoney.h"
#include "ZTOrderSource.h"
#include "ZTProductAbstract.h"
#include "ZTProductRegistry.h"

#include <QCoreApplication>
#include <QDir>
#include <QDomDocument>
#include <QElapsedTimer>
#include <QFile>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

extern char** environ;

namespace {

// Only warnings and worse; the engine's info lines would distort nothing but the output.
// The article whose price is asked first.
const ZTArticleId& theFirstArticle = ZTBenchKeyAccount::firstArticle;

// One start-up and one price question; prints how long each took, for the runner's breakdown.
int runEngine(const QString& theDirectory)
{
    QElapsedTimer timer;
    timer.start();
    ZTBenchKeyAccount::startEngine(theDirectory);
    const qint64 startUp = timer.restart();
    const ZTProductAbstract* product =
        ZTSingleton<ZTAPMDataBase>::instance()->productAbstract(theFirstArticle);
    const ZTMoney price =
        product ? product->price(ZTAPMPriceKey(ZTOrderSource::onlineMailOrder()), 1, ZTMoney(0)) : ZTMoney();
    const qint64 firstPrice = timer.restart();
    if (!price.isValid()) {
        std::fprintf(stderr, "bench_startup: article %d has no price in %s\n", theFirstArticle.id(),
                     qPrintable(theDirectory));
        return 3;
    }
    std::printf("%lld %lld\n", startUp, firstPrice);
    return 0;
}

// What a change of key account costs once the engine runs: the key account's signal reloads the
// registries, which keep their products; and, when the host asks for it, the stores read their
// documents anew.
int runReload(const QString& theDirectory)
{
    ZTBenchKeyAccount::startEngine(theDirectory);
    ZTSingleton<ZTAPMObjects>::instance()->priceInfo(theFirstArticle);
    QElapsedTimer timer;
    timer.start();
    ZTSingleton<ZTKeyAccount>::instance()->switchTo(theDirectory);
    const qint64 registries = timer.restart();
    ZTSingleton<ZTAPMObjects>::instance()->updateKeyAccountData();
    ZTSingleton<ZTAPMObjects>::instance()->priceInfo(theFirstArticle);
    std::printf("%lld %lld\n", registries, timer.elapsed());
    return 0;
}

// The check as ztapm check makes it: collecting from before the start-up, then across the
// documents. Prints the start-up's and the cross-document checks' times.
int runCheck(const QString& theDirectory)
{
    QElapsedTimer timer;
    timer.start();
    ZTBenchKeyAccount::useKeyAccount(theDirectory);
    ZTAPMCatalogueCheck check;
    ZTSingleton<ZTInitializer>::instance()->setupAll();
    const qint64 startUp = timer.restart();
    check.run();
    std::printf("%lld %lld\n", startUp, timer.elapsed());
    return 0;
}

// Reads each document into a whole tree and frees it again.
int runDom(const QString& theDirectory)
{
    const QDir dir(theDirectory);
    for (const char* name : {"products.xml", "prices.xml", "deliverytimes.xml"}) {
        QFile file(dir.filePath(QLatin1String(name)));
        QDomDocument document;
        if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file)) {
            std::fprintf(stderr, "bench_startup: cannot parse %s\n", qPrintable(file.fileName()));
            return 3;
        }
    }
    std::printf("0 0\n");
    return 0;
}

struct Run
{
    double seconds = 0;
    double peakMegabytes = 0;
    long long startUp = 0; // the child's own figures, in ms
    long long firstPrice = 0;
    bool ok = false;
};

double now()
{
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return double(time.tv_sec) + double(time.tv_nsec) / 1e9;
}

// Starts this program in a mode of its own and waits for it; the peak is the child's alone.
Run runChild(const char* theMode, const std::string& theDirectory)
{
    Run run;
    char outputName[] = "/tmp/bench_startup_XXXXXX";
    const int output = mkstemp(outputName);
    if (output < 0)
        return run;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
    std::string self = "/proc/self/exe";
    char* arguments[] = {self.data(), const_cast<char*>(theMode), const_cast<char*>(theDirectory.c_str()),
                         nullptr};
    const double start = now();
    pid_t child = 0;
    const int spawned = posix_spawn(&child, "/proc/self/exe", &actions, nullptr, arguments, environ);
    posix_spawn_file_actions_destroy(&actions);
    if (spawned == 0) {
        int status = 0;
        rusage usage{};
        if (wait4(child, &status, 0, &usage) == child) {
            run.seconds = now() - start;
            run.peakMegabytes = double(usage.ru_maxrss) / 1024.0; // kilobytes on Linux
            run.ok = WIFEXITED(status) && WEXITSTATUS(status) == 0;
        }
    }
    char text[64] = {};
    if (pread(output, text, sizeof(text) - 1, 0) > 0)
        run.ok = run.ok && std::sscanf(text, "%lld %lld", &run.startUp, &run.firstPrice) == 2;
    close(output);
    unlink(outputName);
    return run;
}

template <typename Field>
double median(const std::vector<Run>& theRuns, Field theField)
{
    std::vector<double> values;
    for (const Run& run : theRuns)
        values.push_back(double(theField(run)));
    std::sort(values.begin(), values.end());
    const size_t n = values.size();
    return n % 2 ? values[n / 2] : (values[n / 2 - 1] + values[n / 2]) / 2;
}

int runBenchmark(int theRuns, const QStringList& theDirectories)
{
    std::printf("%d runs each, alternating, every run a process of its own; medians\n", theRuns);
    std::printf("%-24s %8s %8s %6s %9s %9s %8s %8s %8s %8s %8s %6s\n", "key account", "engine s", "DOM s",
                "ratio", "engine MB", "DOM MB", "start ms", "price ms", "reload", "stores", "check s",
                "ratio");
    for (const QString& directory : theDirectories) {
        const std::string path = QFileInfo(directory).absoluteFilePath().toStdString();
        std::vector<Run> engine, dom, reload, check;
        for (int run = 0; run < theRuns; ++run) {
            engine.push_back(runChild("engine", path));
            dom.push_back(runChild("dom", path));
            reload.push_back(runChild("reload", path));
            check.push_back(runChild("check", path));
            if (!engine.back().ok || !dom.back().ok || !reload.back().ok || !check.back().ok) {
                std::fprintf(stderr, "bench_startup: a run on %s failed\n", path.c_str());
                return 3;
            }
        }
        auto seconds = [](const Run& r) { return r.seconds; };
        auto peak = [](const Run& r) { return r.peakMegabytes; };
        auto startUp = [](const Run& r) { return r.startUp; };
        auto firstPrice = [](const Run& r) { return r.firstPrice; };
        const double engineSeconds = median(engine, seconds);
        const double domSeconds = median(dom, seconds);
        const double checkSeconds = median(check, seconds);
        std::printf("%-24s %8.2f %8.2f %6.2f %9.0f %9.0f %8.0f %8.0f %8.0f %8.0f %8.2f %6.2f\n",
                    qPrintable(QFileInfo(directory).fileName()), engineSeconds, domSeconds,
                    engineSeconds / domSeconds, median(engine, peak), median(dom, peak),
                    median(engine, startUp), median(engine, firstPrice), median(reload, startUp),
                    median(reload, firstPrice), checkSeconds, checkSeconds / engineSeconds);
        std::fflush(stdout);
    }
    return 0;
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QStringList arguments = QCoreApplication::arguments();
    arguments.removeFirst();
    ZTBenchKeyAccount::quietLog();

    if (arguments.size() == 2 && QFileInfo(arguments.at(1)).isDir()) {
        const QString directory = QFileInfo(arguments.at(1)).absoluteFilePath();
        if (arguments.at(0) == QLatin1String("engine"))
            return runEngine(directory);
        if (arguments.at(0) == QLatin1String("dom"))
            return runDom(directory);
        if (arguments.at(0) == QLatin1String("reload"))
            return runReload(directory);
        if (arguments.at(0) == QLatin1String("check"))
            return runCheck(directory);
    }
    int runs = 5;
    if (arguments.size() > 1 && arguments.at(0) == QLatin1String("--runs")) {
        runs = arguments.at(1).toInt();
        arguments = arguments.mid(2);
    }
    const bool directories =
        !arguments.isEmpty() && std::all_of(arguments.cbegin(), arguments.cend(),
                                            [](const QString& a) { return QFileInfo(a).isDir(); });
    if (runs < 1 || !directories) {
        std::fprintf(stderr, "usage: bench_startup [--runs N] DIR...\n");
        return 2;
    }
    return runBenchmark(runs, arguments);
}
