#include "config/SealedText.h"

#include "frame/core/BaseNDigits.h"

#include <windows.h>

#include <wincrypt.h>

#include <span>
#include <vector>

namespace vorn
{

namespace
{

/// Bytes that the system has made.
class SystemBlob
{
public:
    SystemBlob() = default;
    ~SystemBlob()
    {
        if (m_blob.pbData)
        {
            ::SecureZeroMemory(m_blob.pbData, m_blob.cbData);
            ::LocalFree(m_blob.pbData);
        }
    }
    SystemBlob(const SystemBlob&) = delete;
    SystemBlob& operator=(const SystemBlob&) = delete;

    DATA_BLOB* Out()
    {
        return &m_blob;
    }
    std::span<const unsigned char> Bytes() const
    {
        return {m_blob.pbData, m_blob.cbData};
    }

private:
    DATA_BLOB m_blob = {0, nullptr};
};

/// The system's calls take what they only read by a plain pointer.
DATA_BLOB BlobOf(std::span<unsigned char> bytes)
{
    return {static_cast<DWORD>(bytes.size()), bytes.data()};
}

} // namespace

std::optional<std::string> SealText(std::string_view secret)
{
    if (secret.empty())
    {
        return std::string();
    }
    std::vector<unsigned char> bytes(secret.begin(), secret.end());
    DATA_BLOB in = BlobOf(bytes);
    SystemBlob out;
    if (!::CryptProtectData(&in, nullptr, nullptr, nullptr, nullptr, CRYPTPROTECT_UI_FORBIDDEN, out.Out()))
    {
        return std::nullopt;
    }
    return EncodeBytes(out.Bytes(), kLargestBase);
}

std::optional<std::string> OpenSealedText(std::string_view sealed)
{
    if (sealed.empty())
    {
        return std::string();
    }
    std::vector<unsigned char> bytes(sealed.size());
    bytes.resize(DecodeBytes(sealed, bytes));
    DATA_BLOB in = BlobOf(bytes);
    SystemBlob out;
    if (!::CryptUnprotectData(&in, nullptr, nullptr, nullptr, nullptr, CRYPTPROTECT_UI_FORBIDDEN, out.Out()))
    {
        return std::nullopt;
    }
    return std::string(out.Bytes().begin(), out.Bytes().end());
}

} // namespace vorn
