#include "ZTCrypto.h"

#include "ZTProgramConfig.h"

#include <QDebug>
#include <QStringDecoder>

#include <openssl/evp.h>
#include <openssl/provider.h>

#include <memory>

namespace {

// OpenSSL 3 keeps DES in its legacy provider. Loading it into the process's default library
// context would change what every other user of OpenSSL gets, so DES lives in a library context
// of its own, with the legacy provider for the cipher and the default one for the rest. Made
// once, thread-safely, and kept to the end of the process.
class DesCipher
{
public:
    DesCipher()
    {
        myContext = OSSL_LIB_CTX_new();
        if (!myContext)
            return;
        if (!OSSL_PROVIDER_load(myContext, "legacy") || !OSSL_PROVIDER_load(myContext, "default"))
            return;
        myCipher = EVP_CIPHER_fetch(myContext, "DES-ECB", nullptr);
    }

    // The fetched cipher may be shared by threads; each call makes its own cipher context.
    const EVP_CIPHER* cipher() const { return myCipher; }

private:
    OSSL_LIB_CTX* myContext = nullptr;
    EVP_CIPHER* myCipher = nullptr;
};

const EVP_CIPHER* desCipher()
{
    static const DesCipher* theCipher = new DesCipher;
    if (!theCipher->cipher()) {
        static const bool warned = [] {
            qWarning() << "DES is not available: OpenSSL's legacy provider cannot be loaded";
            return true;
        }();
        Q_UNUSED(warned)
    }
    return theCipher->cipher();
}

struct CipherContextDeleter
{
    void operator()(EVP_CIPHER_CTX* theContext) const { EVP_CIPHER_CTX_free(theContext); }
};

// Runs DES-ECB with PKCS#5 padding over theInput. False on any failure, bad padding included.
bool runDes(bool theEncrypt, const QByteArray& theKey, const QByteArray& theInput, QByteArray* theOutput)
{
    const EVP_CIPHER* cipher = desCipher();
    if (!cipher || theKey.size() != 8)
        return false;
    std::unique_ptr<EVP_CIPHER_CTX, CipherContextDeleter> context(EVP_CIPHER_CTX_new());
    if (!context)
        return false;
    const auto* key = reinterpret_cast<const unsigned char*>(theKey.constData());
    if (EVP_CipherInit_ex2(context.get(), cipher, key, nullptr, theEncrypt ? 1 : 0, nullptr) != 1)
        return false;
    QByteArray output(theInput.size() + 8, Qt::Uninitialized);
    auto* out = reinterpret_cast<unsigned char*>(output.data());
    int written = 0;
    int finalWritten = 0;
    if (EVP_CipherUpdate(context.get(), out, &written,
                         reinterpret_cast<const unsigned char*>(theInput.constData()),
                         int(theInput.size())) != 1 ||
        EVP_CipherFinal_ex(context.get(), out + written, &finalWritten) != 1)
        return false;
    output.truncate(written + finalWritten);
    *theOutput = output;
    return true;
}

} // namespace

ZTCrypto::ZTCrypto() = default;

ZTCrypto::ZTCrypto(const QByteArray& theKey) : myKey(theKey)
{
    if (myKey.size() != 8)
        qWarning() << "a DES key has 8 bytes, not" << myKey.size();
}

ZTCrypto::~ZTCrypto() = default;

QByteArray ZTCrypto::key() const
{
    return myKey.isNull() ? ZTSingleton<ZTProgramConfig>::instance()->desKey() : myKey;
}

QString ZTCrypto::decryptDES(const QString& theCipherText) const
{
    QByteArray base64 = theCipherText.toLatin1();
    // openssl breaks its base64 output into lines.
    base64.replace('\n', QByteArray()).replace('\r', QByteArray()).replace(' ', QByteArray());
    if (base64.isEmpty())
        return QString();
    const QByteArray::FromBase64Result decoded = QByteArray::fromBase64Encoding(
        base64, QByteArray::Base64Encoding | QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded || decoded.decoded.isEmpty() || decoded.decoded.size() % 8 != 0) {
        qWarning() << "cannot decrypt: not the base64 of whole DES blocks";
        return QString();
    }
    QByteArray plain;
    if (!runDes(false, key(), decoded.decoded, &plain)) {
        qWarning() << "cannot decrypt: wrong key or damaged text";
        return QString();
    }
    QStringDecoder toUtf16(QStringDecoder::Utf8);
    const QString text = toUtf16(plain);
    if (toUtf16.hasError()) {
        qWarning() << "cannot decrypt: the result is not text, the key is probably wrong";
        return QString();
    }
    return text;
}

QString ZTCrypto::encryptDES(const QString& theText) const
{
    QByteArray cipherText;
    if (!runDes(true, key(), theText.toUtf8(), &cipherText)) {
        qWarning() << "cannot encrypt: DES or its key is unavailable";
        return QString();
    }
    return QString::fromLatin1(cipherText.toBase64());
}
