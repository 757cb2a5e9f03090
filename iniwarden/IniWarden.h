// The configuration library: six operations on INI files in code page 936.
#pragma once

#include <string>

#ifdef INIWARDEN_BUILD
#define INIWARDEN_API __declspec(dllexport)
#else
#define INIWARDEN_API __declspec(dllimport)
#endif

/// Reads and writes single keys of plain INI files. A file is named by its path below the working
/// directory at the time of the call, such as `Cfg\Trade\TradePackageConfig.ini`. There are two
/// stores:
///   - the user's, at that path: WriteConfig and the ReadConfig family;
///   - the packaged one, at the same path below the folder `Sys`: the ReadSysConfig family. Nothing
///     here writes to it.
/// A change made from outside is seen by the next call. Every operation may be called from any
/// thread, and several processes may use one file.
///
/// Section and key are compared without the case of ASCII letters. A read gives the default when
/// the file or the key is absent.
class INIWARDEN_API IniWarden
{
public:
    /// The user's value as it was written, blanks and quotes included. A line that was laid out by
    /// hand, with a blank before its `=`, gives the value without blanks and quotes around it.
    static std::string ReadConfigWithDefault(const std::string& section, const std::string& key,
                                             const std::string& defaultText,
                                             const std::string& file);

    /// The user's value as a decimal number, read as GetPrivateProfileInt reads it: what follows the
    /// digits is ignored, a text that is no number gives 0, an empty one the default, and digits
    /// beyond 32 bits wrap around.
    static int ReadConfigIntWithDefault(const std::string& section, const std::string& key,
                                        int defaultValue, const std::string& file);

    /// The packaged value; see ReadConfigWithDefault.
    static std::string ReadSysConfigWithDefault(const std::string& section, const std::string& key,
                                                const std::string& defaultText,
                                                const std::string& file);

    /// The packaged value as a number; see ReadConfigIntWithDefault.
    static int ReadSysConfigIntWithDefault(const std::string& section, const std::string& key,
                                           int defaultValue, const std::string& file);

    /// The packaged value as a decimal fraction with `.` as its point; the default when the text does
    /// not begin with a number.
    static double ReadSysConfigFloatWithDefault(const std::string& section, const std::string& key,
                                                double defaultValue, const std::string& file);

    /// Stores a value in the user's file, making file and folders when they are missing. The file is
    /// replaced as a whole: whenever the process ends, it is the one before the call or the one
    /// after. A value that is stored already is not written again.
    /// @return 1 when the value is stored, 0 when the file stays as it was: the names or the value
    ///         can't be held by an INI file (line breaks, NULs, blanks around a name, a `=` in the
    ///         key...), or the file or its folder can't be written
    static unsigned int WriteConfig(const std::string& section, const std::string& key,
                                    const std::string& value, const std::string& file);
};
