#ifndef ZTAPMPRODUCTSREADING_H
#define ZTAPMPRODUCTSREADING_H

#include "ZTProductElementSkeleton.h"
#include "ztapm_export.h"

#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

#include <vector>

class QFileInfo;
class ZTAPMArticleDefinitions;
class ZTProductRegistryAbstract;

// One streamed reading of a products document for its two consumers: the registries and the
// definitions store. Each takes the elements it reads, and neither reads from the other. The
// store gets each element as it comes; the registries get a skeleton of each (what they read of
// it) after the end, when the store is complete, since a product asks the store for its
// definition at registration and an id may stand twice in a document. The whole document is
// never held.
class ZTAPM_EXPORT ZTAPMProductsReading
{
public:
    // For registries that read these keywords (see ZTProductRegistryAbstract::xmlKeyWords()).
    explicit ZTAPMProductsReading(const QStringList& theKeyWords);

    // Streams the file; theDefinitions, if given, is filled from it as by its own load(). False
    // for a missing or broken file, which leaves the store as it was and gives the registries
    // nothing to read.
    bool read(const QFileInfo& theFile, const ZTAPMArticleDefinitions* theDefinitions);

    // The registry's reading loop on what read() kept, as readProducts() runs it on a whole
    // document: same elements, same order, same warnings.
    void readInto(ZTProductRegistryAbstract* theRegistry) const;

private:
    QStringList myKeyWords;
    QStringList mySectionNames;
    QList<bool> myFoundSections;
    std::vector<std::vector<ZTProductElementSkeleton>> mySkeletons; // by keyword
    // While findings are collected: the file, and the line and column of each skeleton's element,
    // so that the registries' findings point into the document.
    QString myFile;
    std::vector<std::vector<QPair<int, int>>> myPositions; // by keyword, as mySkeletons
};

#endif // ZTAPMPRODUCTSREADING_H
