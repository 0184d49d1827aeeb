#ifndef ZTBENCHKEYACCOUNT_H
#define ZTBENCHKEYACCOUNT_H

#include "ZTArticleId.h"

#include <QString>

#include <vector>

class ZTProductAbstract;

// What the benchmarks share: the engine started on a key account that generate_keyaccount wrote,
// with only warnings and worse on stderr, so that the figures stand alone on stdout.
class ZTBenchKeyAccount
{
public:
    // The generator numbers its articles from 100000 on, without gaps.
    static const ZTArticleId firstArticle;

    static void quietLog();
    // Quiets the log and makes theDirectory the key account, without starting the engine.
    static void useKeyAccount(const QString& theDirectory);
    // The above, then the engine's start-up.
    static void startEngine(const QString& theDirectory);
    // Every article the generator wrote, in the order of their ids; empty if it wrote none.
    static std::vector<ZTProductAbstract*> products();
};

#endif // ZTBENCHKEYACCOUNT_H
