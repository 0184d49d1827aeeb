#include "ZTFotoPaperType.h"

#include "ZTArticleClass.h"
#include "ZTDiagnosticCollector.h"
#include "ZTKeywordTableFiller.h"

#include <QCoreApplication>

ZTFotoPaperType::ZTFotoPaperType(ZTFotoPaperTypeEnum theValue) : ZTEnumWrapper<ZTFotoPaperTypeEnum>(theValue)
{}

ZTFotoPaperType::ZTFotoPaperType(const QString& theText)
{
    setValue(theText);
}

QList<ZTFotoPaperType> ZTFotoPaperType::createFromXTCI(const QString& theText)
{
    QList<ZTFotoPaperType> result;
    QStringList unknown;
    const auto* table = ZTFotoPaperType().enumToStringTable();
    for (const QString& part : theText.split(QLatin1Char(','))) {
        if (part.trimmed().isEmpty())
            continue;
        const ZTFotoPaperType paper(table->decode(part, ZTFotoPaperTypeNone));
        if (paper.isNull())
            unknown.append(part.trimmed());
        else if (!result.contains(paper))
            result.append(paper);
    }
    if (!unknown.isEmpty()) {
        qWarning() << "Unknown photo paper types ignored:" << unknown << "in" << theText;
        ZTDiagnosticCollector::report(
            ZTDiagnostic::Note,
            QCoreApplication::translate("ZTFotoPaperType", "unbekannte Fotopapierarten übergangen: %1")
                .arg(unknown.join(QStringLiteral(", "))));
    }
    return result;
}

ZTFotoPaperType ZTFotoPaperType::defaultFor(const ZTArticleClass& theClass)
{
    const qint64 prints = ZTArticleClassPrints | ZTArticleClassPremiumPrints | ZTArticleClassEnlargements;
    return theClass.matches(ZTArticleClassEnum(prints)) ? ZTFotoPaperTypeGlossy : ZTFotoPaperTypeMatt;
}

void ZTFotoPaperType::fillTable(ZTEnumToStringTable<ZTFotoPaperTypeEnum>* theTable) const
{
    ZTKeywordTableFiller<ZTFotoPaperTypeEnum>(theTable)
        .add("glossy", ZTFotoPaperTypeGlossy)
        .add("matt", ZTFotoPaperTypeMatt)
        .alias("matte", ZTFotoPaperTypeMatt)
        .add("satin", ZTFotoPaperTypeSatin)
        .add("pearl", ZTFotoPaperTypePearl)
        .add("metallic", ZTFotoPaperTypeMetallic);
}
