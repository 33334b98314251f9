#include "tests/host/net/tlsidentity.h"

#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/ssl.h>
#include <openssl/x509v3.h>

namespace xbr::host::test {

TlsIdentity::TlsIdentity(const std::string& subject) : m_key(EVP_EC_gen("P-256")), m_certificate(X509_new()) {
    X509_set_version(m_certificate, 2);
    ASN1_INTEGER_set(X509_get_serialNumber(m_certificate), 1);
    X509_gmtime_adj(X509_getm_notBefore(m_certificate), -3600);
    X509_gmtime_adj(X509_getm_notAfter(m_certificate), 3600);
    X509_set_pubkey(m_certificate, m_key);
    X509_NAME* name = X509_get_subject_name(m_certificate);
    const auto* common = reinterpret_cast<const unsigned char*>("throwaway");
    X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_ASC, common, -1, -1, 0);
    X509_set_issuer_name(m_certificate, name);
    X509_EXTENSION* alternative =
        X509V3_EXT_conf_nid(nullptr, nullptr, NID_subject_alt_name, subject.c_str());
    X509_add_ext(m_certificate, alternative, -1);
    X509_EXTENSION_free(alternative);
    X509_sign(m_certificate, m_key, EVP_sha256());
}

TlsIdentity::~TlsIdentity() {
    X509_free(m_certificate);
    EVP_PKEY_free(m_key);
}

ssl_ctx_st* TlsIdentity::serverContext() const {
    SSL_CTX* context = SSL_CTX_new(TLS_server_method());
    SSL_CTX_use_certificate(context, m_certificate);
    SSL_CTX_use_PrivateKey(context, m_key);
    return context;
}

void TlsIdentity::writeCertificate(const std::string& path) const {
    BIO* file = BIO_new_file(path.c_str(), "w");
    PEM_write_bio_X509(file, m_certificate);
    BIO_free(file);
}

} // namespace xbr::host::test
