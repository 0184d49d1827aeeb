#ifndef ZTAPMORDERTXTCONTENT_H
#define ZTAPMORDERTXTCONTENT_H

#include "ztapm_export.h"

#include <QHash>
#include <QList>
#include <QMutex>
#include <QString>

class QDomElement;

// The lines an article contributes to an order text: a head such as "[FRAME]" and lines of the
// form KEY=value.
class ZTAPM_EXPORT ZTAPMOrderTxtContent
{
public:
    ZTAPMOrderTxtContent();
    ZTAPMOrderTxtContent(const ZTAPMOrderTxtContent& other);
    ZTAPMOrderTxtContent& operator=(const ZTAPMOrderTxtContent& other);
    virtual ~ZTAPMOrderTxtContent();

    // The value cache counts: a content that was asked for a value differs from a fresh one.
    bool operator==(const ZTAPMOrderTxtContent& other) const;
    bool operator!=(const ZTAPMOrderTxtContent& other) const;

    QString head() const;
    QList<QString> lines() const;
    bool hasHead(const QString& theHead) const;
    bool isValid() const;

    // The rest of the first line that starts with "key=" (case ignored); "key" may end in "="
    // already. Empty if no line does.
    QString orderTxtValue(const QString& theKey) const;

    // Takes head and lines from the order_txt_lines child of an article element; without that
    // child everything stays as it was.
    void update(const QDomElement& theElement);

private:
    QHash<QString, QString> valueCache() const;

    QString myHead;
    QList<QString> myLines;
    // Filled by const lookups from any thread: every copy of an article definition shares one
    // content, so the cache needs its own small lock.
    mutable QHash<QString, QString> myValueCache;
    mutable QMutex myValueCacheMutex;
};

#endif // ZTAPMORDERTXTCONTENT_H
