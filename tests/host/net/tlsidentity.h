#pragma once

#include <string>

struct evp_pkey_st;
struct ssl_ctx_st;
struct ssl_st;
struct x509_st;

namespace xbr::host::test {

/// A key and a certificate that it signs itself, made for one test.
class TlsIdentity {
public:
    /// `subject` is the certificate's alternative name, for example "IP:127.0.0.1".
    explicit TlsIdentity(const std::string& subject);
    TlsIdentity(const TlsIdentity&) = delete;
    TlsIdentity& operator=(const TlsIdentity&) = delete;
    ~TlsIdentity();

    /// The caller frees it.
    ssl_ctx_st* serverContext() const;

    /// Writes the certificate for those who are to trust it.
    void writeCertificate(const std::string& path) const;

private:
    evp_pkey_st* m_key;
    x509_st* m_certificate;
};

} // namespace xbr::host::test
