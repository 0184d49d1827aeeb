#include "ZTAPMInitializer.h"

#include "ZTAPMDataBase.h"
#include "ZTAPMGlobalStatus.h"
#include "ZTAPMProductChecker.h"
#include "ZTInitializer.h"
#include "ZTOrderingDetails.h"
#include "ZTPageOrganizationCalculatorAPM.h"
#include "ZTPageOrganizationManager.h"
#include "ZTProductCheckerRegistry.h"

#include <QDebug>

ZTAPMInitializer ZTAPMInitializer::me;

ZTAPMInitializer::ZTAPMInitializer()
{
    ZTSingleton<ZTInitializer>::instance()->registerInitializer(this);
}

ZTAPMInitializer::~ZTAPMInitializer() = default;

void ZTAPMInitializer::setup(ZTInitializerOption)
{
    // The status first: it brings up the configuration, the ordering details and the settings
    // and picks the order source. Constructing the data base then loads the catalogue.
    ZTSingleton<ZTAPMGlobalStatus>::instance();
    ZTSingleton<ZTAPMDataBase>::instance();
    ZTSingleton<ZTOrderingDetails>::instance();
    ZTSingleton<ZTPageOrganizationManager>::instance()->setCalculator(new ZTPageOrganizationCalculatorAPM);
    qInfo() << "Calculator set for Page Organization Manager (POM).";
    ZTSingleton<ZTProductCheckerRegistry>::instance()->registerChecker(new ZTAPMProductChecker);
    qInfo() << "Checker registerd with Product Checker Registry (PCR).";
}

void ZTAPMInitializer::teardown()
{}
