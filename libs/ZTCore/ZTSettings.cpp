#include "ZTSettings.h"

#include "ZTSettingsLock.h"

#include <QDebug>
#include <QSettings>

ZTSettings::ZTSettings(const QString& theName, QObject* theParent)
    : QObject(theParent)
    , mySettings(std::make_unique<QSettings>(ZTSettingsLock::settingsDirectory() + QLatin1Char('/') +
                                                 theName + QStringLiteral(".ini"),
                                             QSettings::IniFormat))
{}

ZTSettings::~ZTSettings()
{
    ZTSettingsLock lock;
    mySettings.reset();
}

QString ZTSettings::fileName() const
{
    return mySettings->fileName();
}

void ZTSettings::applyStartupRule(int theRule)
{
    ZTSettingsLock lock;
    applyStartupRuleInternal(theRule);
    sync();
}

void ZTSettings::applyStartupRuleInternal(int theRule)
{
    switch (theRule) {
    case StartupKeep:
        break;
    case StartupResetAll:
        mySettings->clear();
        break;
    default:
        qWarning() << "unknown settings start-up rule" << theRule << "for" << fileName();
        break;
    }
}

void ZTSettings::beginGroup(const QString& theGroup)
{
    ZTSettingsLock lock;
    mySettings->beginGroup(theGroup);
}

void ZTSettings::endGroup()
{
    ZTSettingsLock lock;
    mySettings->endGroup();
}

QString ZTSettings::group() const
{
    ZTSettingsLock lock;
    return mySettings->group();
}

bool ZTSettings::contains(const QString& theKey) const
{
    ZTSettingsLock lock;
    return mySettings->contains(theKey);
}

void ZTSettings::deleteEntry(const QString& theKey)
{
    ZTSettingsLock lock;
    mySettings->remove(theKey);
    sync();
}

void ZTSettings::load(ZTConfigItem<QString>* theItem)
{
    if (!theItem)
        return;
    ZTSettingsLock lock;
    const QVariant stored = mySettings->value(theItem->key());
    theItem->setLoadedValue(stored.isValid() ? stored.toString() : theItem->defaultValue());
}

void ZTSettings::save(const ZTConfigItem<QString>& theItem)
{
    ZTSettingsLock lock;
    mySettings->setValue(theItem.key(), theItem.value());
    sync();
}

void ZTSettings::sync()
{
    ZTSettingsLock lock;
    mySettings->sync();
    if (mySettings->status() != QSettings::NoError)
        qWarning() << "cannot write the settings file" << fileName();
}
