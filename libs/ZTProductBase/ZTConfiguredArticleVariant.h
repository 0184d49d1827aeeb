#ifndef ZTCONFIGUREDARTICLEVARIANT_H
#define ZTCONFIGUREDARTICLEVARIANT_H

#include "ztproductbase_export.h"

#include <QDebug>
#include <QString>

// One way in which the key account offers an article, for instance a box style or a colour of
// the lining: a number that the order carries and a name that the customer sees.
class ZTPRODUCTBASE_EXPORT ZTConfiguredArticleVariant
{
public:
    ZTConfiguredArticleVariant();
    ZTConfiguredArticleVariant(int theId, const QString& theName);
    ZTConfiguredArticleVariant(const ZTConfiguredArticleVariant& other);
    ZTConfiguredArticleVariant& operator=(const ZTConfiguredArticleVariant& other);
    virtual ~ZTConfiguredArticleVariant();

    int id() const { return myId; }
    QString name() const { return myName; }
    // Ids are positive; 0 and below mark a default-made variant.
    bool isValid() const { return myId > 0; }

    bool operator==(const ZTConfiguredArticleVariant& other) const;
    bool operator!=(const ZTConfiguredArticleVariant& other) const { return !(*this == other); }

private:
    int myId = 0;
    QString myName;
};

ZTPRODUCTBASE_EXPORT QDebug operator<<(QDebug debug, const ZTConfiguredArticleVariant& theVariant);

#endif // ZTCONFIGUREDARTICLEVARIANT_H
