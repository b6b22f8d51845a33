#pragma once
// A fresh folder under the system's temporary folder, removed with everything in it
// when the object goes.

#include <string>

namespace orbidex::test {

class TempFolder {
public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    /// The folder in native form, without a trailing "/".
    const std::string& Native() const { return native_; }
    /// The folder in stored form ("\"), without a trailing "\".
    std::string Stored() const;

private:
    std::string native_;
};

}  // namespace orbidex::test
