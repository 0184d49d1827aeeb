#ifndef ZTCRYPTO_H
#define ZTCRYPTO_H

#include "ztcore_export.h"

#include <QByteArray>
#include <QString>

// DES for the short secrets that key-account documents carry (client ids). The text form is
// base64 of DES-ECB with PKCS#5 padding over the UTF-8 bytes, which is what
//   printf %s 'text' | openssl enc -des-ecb -provider legacy -provider default -K <hex key> -nosalt -base64
// writes. The key is ZTProgramConfig::desKey() unless one is given.
class ZTCORE_EXPORT ZTCrypto
{
public:
    ZTCrypto();
    // An explicit 8-byte key; another size warns, and every call then fails.
    explicit ZTCrypto(const QByteArray& theKey);
    ~ZTCrypto();

    // The plain text, or an empty text and a warning if theCipherText is not base64, not a
    // whole number of blocks, wrongly padded or not UTF-8 after decryption (a wrong key shows
    // so). An empty input gives an empty text silently.
    QString decryptDES(const QString& theCipherText) const;
    // The text form of theText; empty (with a warning) only if DES is unavailable.
    QString encryptDES(const QString& theText) const;

private:
    QByteArray key() const;

    QByteArray myKey;
};

#endif // ZTCRYPTO_H
