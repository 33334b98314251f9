#include "host/net/http/failure.h"

#include <algorithm>
#include <iterator>

namespace xbr::host {

namespace {

/// A failure of the connection in words; %s stands for the host.
struct Wording {
    CURLcode code;
    Fault fault;
    const char* text;
};

constexpr Wording kWordings[] = {
    {CURLE_COULDNT_RESOLVE_HOST, Fault::kNoServer, "The server %s could not be found."},
    {CURLE_COULDNT_RESOLVE_PROXY, Fault::kNoServer, "The proxy server on the way to %s could not be found."},
    {CURLE_COULDNT_CONNECT, Fault::kNoServer, "No connection to %s could be made."},
    {CURLE_PROXY, Fault::kNoServer, "No connection to %s could be made."},
    {CURLE_OPERATION_TIMEDOUT, Fault::kNoServer,
     "The server %s did not answer in time."}, // as it was connected to
    {CURLE_GOT_NOTHING, Fault::kConnectionLost, "The server %s closed the connection without an answer."},
    {CURLE_SEND_ERROR, Fault::kConnectionLost, "The connection to %s was lost."},
    {CURLE_RECV_ERROR, Fault::kConnectionLost, "The connection to %s was lost."},
    {CURLE_PARTIAL_FILE, Fault::kConnectionLost, "The answer of %s was cut short."},
    {CURLE_WEIRD_SERVER_REPLY, Fault::kConnectionLost, "The answer of %s could not be understood."},
    {CURLE_UNSUPPORTED_PROTOCOL, Fault::kConnectionLost, "The answer of %s could not be understood."},
    {CURLE_BAD_CONTENT_ENCODING, Fault::kConnectionLost, "The answer of %s could not be understood."},
    {CURLE_OK, Fault::kConnectionLost, "The answer of %s could not be understood."}, // an interim one alone
    {CURLE_PEER_FAILED_VERIFICATION, Fault::kUntrusted, "The certificate of %s is not trusted."},
    {CURLE_SSL_CACERT_BADFILE, Fault::kUntrusted,
     "The list of trusted certificates, needed for %s, could not be read."},
    {CURLE_SSL_CONNECT_ERROR, Fault::kUntrusted, "No secure connection to %s could be made."},
    {CURLE_SSL_CERTPROBLEM, Fault::kUntrusted, "No secure connection to %s could be made."},
    {CURLE_SSL_CIPHER, Fault::kUntrusted, "No secure connection to %s could be made."},
    {CURLE_SSL_ISSUER_ERROR, Fault::kUntrusted, "No secure connection to %s could be made."},
};

const Wording* wordingOf(CURLcode code) {
    const auto* found = std::find_if(std::begin(kWordings), std::end(kWordings),
                                     [&](const Wording& wording) { return wording.code == code; });
    return found == std::end(kWordings) ? nullptr : found;
}

const char* endedText(Ended ended) {
    switch (ended) {
    case Ended::kReplyTooLarge:
        return "The answer of %s is too large.";
    case Ended::kBodyUnreadable:
        return "The data to send to %s could not be read.";
    case Ended::kStalled:
        return "The connection to %s has stalled.";
    case Ended::kNot:
        break;
    }
    return nullptr;
}

std::string fillIn(std::string text, const std::string& host) {
    if (const auto place = text.find("%s"); place != std::string::npos) {
        text.replace(place, 2, host);
    }
    return text;
}

std::string failureText(Ended ended, CURLcode code, const std::string& host) {
    const char* text = endedText(ended);
    if (text) {
        return fillIn(text, host);
    }
    // curl_easy_strerror has fixed texts: unlike the error buffer it never quotes the request.
    const Wording* wording = wordingOf(code);
    return wording ? fillIn(wording->text, host)
                   : fillIn("The request to %s failed: ", host) + curl_easy_strerror(code) + ".";
}

Fault faultOf(Ended ended, CURLcode code) {
    switch (ended) {
    case Ended::kReplyTooLarge:
        return Fault::kReplyTooLarge;
    case Ended::kBodyUnreadable:
        return Fault::kUnreadable;
    case Ended::kStalled:
        return Fault::kStalled;
    case Ended::kNot:
        break;
    }
    const Wording* wording = wordingOf(code);
    return wording ? wording->fault : Fault::kConnectionLost;
}

} // namespace

Problem failureOf(Ended ended, CURLcode code, const std::string& host) {
    return {faultOf(ended, code), host, 0, failureText(ended, code, host), {}, {}};
}

Problem refusalOf(int status, bool hadCredentials, const std::string& host, const std::string& said) {
    static constexpr int kFirstRedirection = 300;
    static constexpr int kUnauthorized = 401;
    static constexpr int kFirstServerError = 500;
    if (status < kFirstRedirection) {
        return {};
    }
    const Fault refused = status == kUnauthorized && hadCredentials ? Fault::kSignInRefused : Fault::kRefused;
    return {status < kFirstServerError ? refused : Fault::kServerFault, host, status, said, {}, {}};
}

} // namespace xbr::host
