#include "ZTAPMInitializer.h"

#include "ZTAPMDataBase.h"
#include "ZTAPMProductChecker.h"
#include "ZTInitializer.h"
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
    // Constructing the data base loads the catalogue.
    ZTSingleton<ZTAPMDataBase>::instance();
    ZTSingleton<ZTPageOrganizationManager>::instance()->setCalculator(new ZTPageOrganizationCalculatorAPM);
    qInfo() << "Calculator set for Page Organization Manager (POM).";
    ZTSingleton<ZTProductCheckerRegistry>::instance()->registerChecker(new ZTAPMProductChecker);
    qInfo() << "Checker registerd with Product Checker Registry (PCR).";
}

void ZTAPMInitializer::teardown()
{}
