#include "host/net/http/failure.h"

namespace xbr::host {

namespace {

/// The text of a failure of the connection; %s stands for the host. Null for failures that need no own words.
const char* connectionText(CURLcode code) {
    switch (code) {
    case CURLE_COULDNT_RESOLVE_HOST:
        return "The server %s could not be found.";
    case CURLE_COULDNT_RESOLVE_PROXY:
        return "The proxy server on the way to %s could not be found.";
    case CURLE_COULDNT_CONNECT:
    case CURLE_PROXY:
        return "No connection to %s could be made.";
    case CURLE_OPERATION_TIMEDOUT:
        return "The server %s did not answer in time.";
    case CURLE_GOT_NOTHING:
        return "The server %s closed the connection without an answer.";
    case CURLE_SEND_ERROR:
    case CURLE_RECV_ERROR:
        return "The connection to %s was lost.";
    case CURLE_PARTIAL_FILE:
        return "The answer of %s was cut short.";
    case CURLE_WEIRD_SERVER_REPLY:
    case CURLE_UNSUPPORTED_PROTOCOL:
    case CURLE_BAD_CONTENT_ENCODING:
    case CURLE_OK: // an interim answer and nothing after it
        return "The answer of %s could not be understood.";
    default:
        return nullptr;
    }
}

const char* secureText(CURLcode code) {
    switch (code) {
    case CURLE_PEER_FAILED_VERIFICATION:
        return "The certificate of %s is not trusted.";
    case CURLE_SSL_CACERT_BADFILE:
        return "The list of trusted certificates, needed for %s, could not be read.";
    case CURLE_SSL_CONNECT_ERROR:
    case CURLE_SSL_CERTPROBLEM:
    case CURLE_SSL_CIPHER:
    case CURLE_SSL_ISSUER_ERROR:
        return "No secure connection to %s could be made.";
    default:
        return nullptr;
    }
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
    if (!text) {
        text = connectionText(code);
    }
    if (!text) {
        text = secureText(code);
    }
    if (text) {
        return fillIn(text, host);
    }
    // curl_easy_strerror has fixed texts: unlike the error buffer it never quotes the request.
    return fillIn("The request to %s failed: ", host) + curl_easy_strerror(code) + ".";
}

Fault faultOf(CURLcode code) {
    switch (code) {
    case CURLE_COULDNT_RESOLVE_HOST:
    case CURLE_COULDNT_RESOLVE_PROXY:
    case CURLE_COULDNT_CONNECT:
    case CURLE_PROXY:
    case CURLE_OPERATION_TIMEDOUT: // only connecting has a limit
        return Fault::kNoServer;
    default:
        return secureText(code) ? Fault::kUntrusted : Fault::kConnectionLost;
    }
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
    return faultOf(code);
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
