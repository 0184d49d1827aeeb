#ifndef ZTSETTINGS_H
#define ZTSETTINGS_H

#include "ZTConfigItem.h"
#include "ztcore_export.h"

#include <QObject>
#include <QString>

#include <memory>

class QSettings;

// A persistent key-value store: one INI file, <config>/ztapm/<name>.ini, where <config> is the
// user's configuration directory ($XDG_CONFIG_HOME, usually ~/.config). Every change is written
// at once. The application's own settings are ZTSingleton<ZTSettings>::instance(); a library
// with settings of its own derives from this class.
//
// One object must not be used from two threads at once: hold a ZTSettingsLock around a sequence
// of calls (each call also takes it on its own, so a single call is always safe).
class ZTCORE_EXPORT ZTSettings : public QObject
{
    Q_OBJECT

public:
    // Rules for applyStartupRule(); derived classes may add their own above 100.
    enum StartupRule {
        StartupKeep = 0,
        // Forget everything stored in this file.
        StartupResetAll = 1,
    };

    explicit ZTSettings(const QString& theName = QStringLiteral("settings"), QObject* theParent = nullptr);
    ~ZTSettings() override;

    QString fileName() const;

    // Applies a start-up rule (say, from the command line) under the lock, then writes the file.
    void applyStartupRule(int theRule);

    // Groups nest; keys below are relative to the open group.
    void beginGroup(const QString& theGroup);
    void endGroup();
    QString group() const;

    bool contains(const QString& theKey) const;
    void deleteEntry(const QString& theKey);
    // Sets the item's value from the store, or to its default if the store has none.
    void load(ZTConfigItem<QString>* theItem);
    void save(const ZTConfigItem<QString>& theItem);

protected:
    // Does the work of applyStartupRule(); the base knows StartupKeep and StartupResetAll and
    // warns about other rules. Overrides handle their own rules and pass the rest on.
    virtual void applyStartupRuleInternal(int theRule);
    // Writes pending changes and takes in those of other programs.
    void sync();

private:
    std::unique_ptr<QSettings> mySettings;
};

#endif // ZTSETTINGS_H
