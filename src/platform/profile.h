#pragma once

#include <optional>
#include <string>
#include <utility>

namespace tavo {

// The port to settings files of sections and keys.
class Profile {
public:
    virtual ~Profile() = default;

    // The text of `key` in `section`, trimmed and cut to `size` - 1 bytes (no
    // character is split); `fallback` when the key or the file is missing.
    // With an empty optional for `key`: the names of all keys in file order,
    // each followed by a NUL, cut to `size` - 2 bytes.
    virtual std::string GetPrivateProfileStringA(const std::string& section,
                                                 std::optional<std::string> key,
                                                 const std::string& fallback, int size,
                                                 const std::string& file) = 0;

    // Gives the key this value, and makes key, section and file where they are
    // missing. Without a value the key goes, without a key the whole section;
    // what isn't there goes with success and makes no file. All else in the
    // file stays byte for byte, and a file that is as wanted is not touched.
    // False when the file cannot be written, or the folder is missing; the
    // file is then as it was.
    virtual bool WritePrivateProfileStringA(const std::string& section,
                                            std::optional<std::string> key,
                                            std::optional<std::string> value,
                                            const std::string& file) = 0;

    // Begins a save: until its end, what is written to `file` is collected,
    // with success, and is seen by reads. Saves of one file nest.
    virtual void BeginSave(const std::string& file) = 0;
    // Ends a save. The end of the outermost one puts all that was collected
    // into the file, as it is by then, in one step: there is only the old file
    // or the new one. False when that failed, or when there was no save.
    virtual bool EndSave(const std::string& file) = 0;
};

// One save of a file, from here to the end of the block.
class ProfileSave {
public:
    ProfileSave(Profile& profile, std::string file) : profile_(profile), file_(std::move(file))
    {
        profile_.BeginSave(file_);
    }
    ~ProfileSave() { End(); }
    ProfileSave(const ProfileSave&) = delete;
    ProfileSave& operator=(const ProfileSave&) = delete;

    // Ends the save before the block's end, for who wants to know how it went.
    // False the second time.
    bool End() { return std::exchange(isOpen_, false) && profile_.EndSave(file_); }

private:
    Profile& profile_;
    std::string file_;
    bool isOpen_ = true;
};

} // namespace tavo
