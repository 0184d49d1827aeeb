#include "ZTAPMProductsReading.h"

#include "ZTAPMArticleDefinitions.h"
#include "ZTDiagnosticCollector.h"
#include "ZTProductRegistryAbstract.h"
#include "ZTXMLLoader.h"

#include <QDomDocument>
#include <QFileInfo>

#include <optional>

ZTAPMProductsReading::ZTAPMProductsReading(const QStringList& theKeyWords) : myKeyWords(theKeyWords)
{
    for (const QString& keyWord : theKeyWords)
        mySectionNames.append(keyWord + QLatin1Char('s'));
}

bool ZTAPMProductsReading::read(const QFileInfo& theFile, const ZTAPMArticleDefinitions* theDefinitions)
{
    mySkeletons.assign(size_t(myKeyWords.size()), {});
    const bool collecting = ZTDiagnosticCollector::isCollecting();
    myPositions.assign(collecting ? size_t(myKeyWords.size()) : 0, {});
    myFile = theFile.filePath();
    QStringList sectionNames = mySectionNames;
    std::vector<qsizetype> storeSections; // the store's section of each section read, or -1
    std::optional<ZTAPMArticleDefinitions::Filling> filling;
    if (theDefinitions) {
        for (const QString& name : theDefinitions->sectionNames()) {
            if (!sectionNames.contains(name))
                sectionNames.append(name);
        }
        for (const QString& name : std::as_const(sectionNames))
            storeSections.push_back(theDefinitions->sectionNames().indexOf(name));
        filling.emplace(*theDefinitions);
    }

    const qsizetype registrySections = myKeyWords.size();
    QList<bool> found;
    const bool complete = ZTXMLLoader::forEachSectionElement(
        theFile, sectionNames,
        [&](qsizetype theSection, const QDomElement& theElement) {
            if (filling && storeSections[size_t(theSection)] >= 0)
                filling->add(storeSections[size_t(theSection)], theElement);
            if (theSection < registrySections && theElement.tagName() == myKeyWords.at(theSection)) {
                mySkeletons[size_t(theSection)].emplace_back(theElement);
                if (collecting)
                    myPositions[size_t(theSection)].emplace_back(ZTDiagnosticCollector::Location::line(),
                                                                 ZTDiagnosticCollector::Location::column());
            }
        },
        &found);
    if (filling)
        filling->finish(complete);
    if (!complete) {
        mySkeletons.clear();
        return false;
    }
    myFoundSections = found.mid(0, registrySections);
    return true;
}

void ZTAPMProductsReading::readInto(ZTProductRegistryAbstract* theRegistry) const
{
    QDomDocument scratch;
    theRegistry->setProductsDeprecated();
    for (const QString& keyWord : theRegistry->xmlKeyWords()) {
        const qsizetype section = myKeyWords.indexOf(keyWord);
        if (section < 0 || !myFoundSections.value(section)) {
            ZTProductRegistryAbstract::warnMissingSection(keyWord + QLatin1Char('s'));
            continue;
        }
        const std::vector<ZTProductElementSkeleton>& skeletons = mySkeletons[size_t(section)];
        const bool located = size_t(section) < myPositions.size();
        for (size_t i = 0; i < skeletons.size(); ++i) {
            std::optional<ZTDiagnosticCollector::Location> location;
            if (located)
                location.emplace(myFile, myPositions[size_t(section)][i].first,
                                 myPositions[size_t(section)][i].second);
            theRegistry->readElement(skeletons[i].toElement(scratch));
        }
    }
}
