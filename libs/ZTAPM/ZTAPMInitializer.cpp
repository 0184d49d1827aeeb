#include "ZTAPMInitializer.h"

#include "ZTAPMDataBase.h"
#include "ZTInitializer.h"

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
}

void ZTAPMInitializer::teardown()
{}
