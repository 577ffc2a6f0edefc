// SPDX-License-Identifier: MIT
#pragma once

#include "foundation/SharedLibrary.h"

#include <openssl/cms.h>
#include <openssl/err.h>
#include <openssl/evp.h>
#include <openssl/x509.h>
#include <openssl/x509v3.h>

namespace lumora
{

/// The functions of libcrypto for signatures, profiles and hashes, under their own names. Opened by name, since its
/// four thousand functions would be a third of those that a start of the command binds.
struct OpenSsl
{
    SharedLibrary library{LUMORA_CRYPTO_SONAME};
    decltype(&::ASN1_STRING_get0_data) ASN1_STRING_get0_data = library["ASN1_STRING_get0_data"];
    decltype(&::ASN1_STRING_length) ASN1_STRING_length = library["ASN1_STRING_length"];
    decltype(&::ASN1_STRING_to_UTF8) ASN1_STRING_to_UTF8 = library["ASN1_STRING_to_UTF8"];
    decltype(&::ASN1_TIME_free) ASN1_TIME_free = library["ASN1_TIME_free"];
    decltype(&::ASN1_TIME_to_tm) ASN1_TIME_to_tm = library["ASN1_TIME_to_tm"];
    decltype(&::CMS_ContentInfo_free) CMS_ContentInfo_free = library["CMS_ContentInfo_free"];
    decltype(&::CMS_get0_content) CMS_get0_content = library["CMS_get0_content"];
    decltype(&::CMS_get0_type) CMS_get0_type = library["CMS_get0_type"];
    decltype(&::CRYPTO_free) CRYPTO_free = library["CRYPTO_free"];
    decltype(&::ERR_clear_error) ERR_clear_error = library["ERR_clear_error"];
    decltype(&::EVP_DigestFinal_ex) EVP_DigestFinal_ex = library["EVP_DigestFinal_ex"];
    decltype(&::EVP_DigestInit_ex) EVP_DigestInit_ex = library["EVP_DigestInit_ex"];
    decltype(&::EVP_DigestUpdate) EVP_DigestUpdate = library["EVP_DigestUpdate"];
    decltype(&::EVP_DigestVerify) EVP_DigestVerify = library["EVP_DigestVerify"];
    decltype(&::EVP_DigestVerifyInit) EVP_DigestVerifyInit = library["EVP_DigestVerifyInit"];
    decltype(&::EVP_MD_CTX_free) EVP_MD_CTX_free = library["EVP_MD_CTX_free"];
    decltype(&::EVP_MD_CTX_new) EVP_MD_CTX_new = library["EVP_MD_CTX_new"];
    decltype(&::EVP_MD_get_size) EVP_MD_get_size = library["EVP_MD_get_size"];
    decltype(&::EVP_sha1) EVP_sha1 = library["EVP_sha1"];
    decltype(&::EVP_sha256) EVP_sha256 = library["EVP_sha256"];
    decltype(&::EVP_sha384) EVP_sha384 = library["EVP_sha384"];
    decltype(&::EVP_sha512) EVP_sha512 = library["EVP_sha512"];
    decltype(&::OBJ_obj2nid) OBJ_obj2nid = library["OBJ_obj2nid"];
    decltype(&::X509_NAME_ENTRY_get_data) X509_NAME_ENTRY_get_data = library["X509_NAME_ENTRY_get_data"];
    decltype(&::X509_NAME_get_entry) X509_NAME_get_entry = library["X509_NAME_get_entry"];
    decltype(&::X509_NAME_get_index_by_NID) X509_NAME_get_index_by_NID = library["X509_NAME_get_index_by_NID"];
    decltype(&::X509_check_issued) X509_check_issued = library["X509_check_issued"];
    decltype(&::X509_free) X509_free = library["X509_free"];
    decltype(&::X509_get0_notAfter) X509_get0_notAfter = library["X509_get0_notAfter"];
    decltype(&::X509_get0_notBefore) X509_get0_notBefore = library["X509_get0_notBefore"];
    decltype(&::X509_get0_pubkey) X509_get0_pubkey = library["X509_get0_pubkey"];
    decltype(&::X509_get0_serialNumber) X509_get0_serialNumber = library["X509_get0_serialNumber"];
    decltype(&::X509_get0_subject_key_id) X509_get0_subject_key_id = library["X509_get0_subject_key_id"];
    decltype(&::X509_get_issuer_name) X509_get_issuer_name = library["X509_get_issuer_name"];
    decltype(&::X509_get_subject_name) X509_get_subject_name = library["X509_get_subject_name"];
    decltype(&::X509_verify) X509_verify = library["X509_verify"];
    decltype(&::d2i_ASN1_TIME) d2i_ASN1_TIME = library["d2i_ASN1_TIME"];
    decltype(&::d2i_CMS_ContentInfo) d2i_CMS_ContentInfo = library["d2i_CMS_ContentInfo"];
    decltype(&::d2i_X509) d2i_X509 = library["d2i_X509"];
    decltype(&::i2d_ASN1_INTEGER) i2d_ASN1_INTEGER = library["i2d_ASN1_INTEGER"];
    decltype(&::i2d_X509) i2d_X509 = library["i2d_X509"];
    decltype(&::i2d_X509_NAME) i2d_X509_NAME = library["i2d_X509_NAME"];
};

/// Opens the library at the first call, on any thread.
const OpenSsl &openSsl();

} // namespace lumora
