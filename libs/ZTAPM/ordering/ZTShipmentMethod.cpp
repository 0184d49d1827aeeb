#include "ZTShipmentMethod.h"

#include "ZTAPMDataBase.h"
#include "ZTShipmentMethodImpl.h"
#include "ZTXMLParser.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDomElement>
#include <QRegularExpressionValidator>

ZTShipmentMethod::ZTShipmentMethod() : d(new ZTShipmentMethodImpl)
{}

ZTShipmentMethod::ZTShipmentMethod(const QDomElement& theElement) : d(new ZTShipmentMethodImpl)
{
    const auto text = [&theElement](const char* theName) {
        return ZTXMLParser::attribute(theElement, QLatin1String(theName), QString(), true);
    };
    d->myId = ZTXMLParser::intAttribute(theElement, QStringLiteral("id"), invalidId);
    d->myName = text("name");
    d->myPickupPointsAvailable =
        ZTXMLParser::boolAttribute(theElement, QStringLiteral("pickup_points_available"), false);
    d->myAdditionalFieldValidator = QRegularExpression(text("additional_field_pattern"));
    d->myAdditionalFieldIsRequired =
        ZTXMLParser::boolAttribute(theElement, QStringLiteral("additional_field_required"), false);
    d->myAdditionalFieldKey = text("additional_field_key");
    d->myAdditionalFieldName = text("additional_field_key_name");
    d->myRegistrationUrl = QUrl(text("registration_url"));
}

ZTShipmentMethod::ZTShipmentMethod(const ZTShipmentMethod& theOther) = default;
ZTShipmentMethod::ZTShipmentMethod(ZTShipmentMethod&& theOther) noexcept = default;
ZTShipmentMethod& ZTShipmentMethod::operator=(const ZTShipmentMethod& theOther) = default;
ZTShipmentMethod& ZTShipmentMethod::operator=(ZTShipmentMethod&& theOther) noexcept = default;
ZTShipmentMethod::~ZTShipmentMethod() = default;

bool ZTShipmentMethod::operator==(const ZTShipmentMethod& theOther) const
{
    return d == theOther.d || *d == *theOther.d;
}

bool ZTShipmentMethod::operator!=(const ZTShipmentMethod& theOther) const
{
    return !(*this == theOther);
}

int ZTShipmentMethod::id() const
{
    return d->myId;
}

QString ZTShipmentMethod::name() const
{
    return d->myName;
}

bool ZTShipmentMethod::pickupPointsAvailable() const
{
    return d->myPickupPointsAvailable;
}

bool ZTShipmentMethod::additionalFieldIsRequired() const
{
    return d->myAdditionalFieldIsRequired;
}

QString ZTShipmentMethod::additionalFieldKey() const
{
    return d->myAdditionalFieldKey;
}

QString ZTShipmentMethod::additionalFieldName() const
{
    return d->myAdditionalFieldName;
}

bool ZTShipmentMethod::isValid() const
{
    return d->myId != invalidId;
}

bool ZTShipmentMethod::isDefault() const
{
    return d->myId == defaultId;
}

ZTArticleId ZTShipmentMethod::articleId() const
{
    return ZTArticleId(ZTAPMDataBase::instance()->idOfShipmentMethodFeeProduct(d->myId));
}

QRegularExpressionValidator* ZTShipmentMethod::additionalFieldValidator() const
{
    if (!d->myAdditionalFieldValidator.isValid())
        return nullptr;
    return new QRegularExpressionValidator(d->myAdditionalFieldValidator, nullptr);
}

bool ZTShipmentMethod::registrationIsPossible() const
{
    return d->myRegistrationUrl.isValid();
}

QUrl ZTShipmentMethod::registrationUrl() const
{
    return d->myRegistrationUrl;
}

QString ZTShipmentMethod::registrationText() const
{
    return tr("Noch kein Kunde?");
}

QString ZTShipmentMethod::registrationLinkText() const
{
    return tr("Hier registrieren.");
}

QString ZTShipmentMethod::intro() const
{
    if (d->myId == dhlPackstationId) {
        return tr("<b>Wichtiger Hinweis zur Packstation</b><ul><li>Um Ihr Paket abholen zu können, "
                  "benötigten "
                  "Sie Ihre %1.</li><li>Der hinterlegte Name in Ihrem DHL Konto muss mit dem Namen in der "
                  "Rechnungsadresse übereinstimmen.</li><li>Nur Produkte bis zu einer Größe von 60x35x35 cm "
                  "können an die Packstation geliefert werden.</li></ul>")
            .arg(additionalFieldName());
    }
    return QStringLiteral("<i>%1</i>").arg(tr("Für diesen Dienstleister werden weitere Angaben benötigt."));
}

QString ZTShipmentMethod::valueIntro() const
{
    if (!additionalFieldIsRequired())
        return QString();
    const QString pattern = tr("%1:");
    if (!additionalFieldName().isEmpty())
        return pattern.arg(additionalFieldName());
    if (additionalFieldKey() == QLatin1String("mobile_phone"))
        return pattern.arg(tr("Telefonnummer"));
    if (additionalFieldKey() == QLatin1String("user_id"))
        return pattern.arg(tr("persöhnliche %1 Kennnummer").arg(name()));
    // An unknown key without a name: the pattern as it is, so that the host can tell.
    return pattern;
}

QDebug operator<<(QDebug theDebug, const ZTShipmentMethod& theMethod)
{
    QDebugStateSaver saver(theDebug);
    theDebug.nospace() << "ZTShipmentMethod(" << theMethod.id() << ", " << theMethod.name() << ')';
    return theDebug;
}
