// What a built DLL or program says about itself: its machine, exports and imports, read from the file.
#pragma once

#include <windows.h>

#include <cstring>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

namespace zttest {

// The folder of the running program, in which the built libraries stand too.
inline std::string BuiltFile(const char* name)
{
    char path[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, path, sizeof path);
    const std::string program(path);
    return program.substr(0, program.find_last_of('\\') + 1) + name;
}

struct NamedExport {
    std::string name;
    DWORD ordinal;
};

class ImageFile {
public:
    explicit ImageFile(const std::string& path)
    {
        std::ifstream file(path, std::ios::binary);
        bytes_.assign(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
        headers_ = static_cast<size_t>(Read<IMAGE_DOS_HEADER>(0).e_lfanew);
    }

    WORD Machine() const { return Headers().FileHeader.Machine; }

    std::vector<NamedExport> Exports() const
    {
        const auto table = Read<IMAGE_EXPORT_DIRECTORY>(Directory(IMAGE_DIRECTORY_ENTRY_EXPORT));
        std::vector<NamedExport> found;
        for (DWORD i = 0; i < table.NumberOfNames; ++i) {
            const DWORD name = Read<DWORD>(Offset(table.AddressOfNames) + i * sizeof(DWORD));
            const WORD index = Read<WORD>(Offset(table.AddressOfNameOrdinals) + i * sizeof(WORD));
            found.push_back({Text(Offset(name)), table.Base + index});
        }
        return found;
    }

    // Functions exported with or without a name.
    DWORD ExportCount() const
    {
        const auto table = Read<IMAGE_EXPORT_DIRECTORY>(Directory(IMAGE_DIRECTORY_ENTRY_EXPORT));
        DWORD count = 0;
        for (DWORD i = 0; i < table.NumberOfFunctions; ++i)
            count += Read<DWORD>(Offset(table.AddressOfFunctions) + i * sizeof(DWORD)) != 0;
        return count;
    }

    std::vector<std::string> ImportedLibraries() const
    {
        std::vector<std::string> found;
        size_t entry = Directory(IMAGE_DIRECTORY_ENTRY_IMPORT);
        for (; Read<IMAGE_IMPORT_DESCRIPTOR>(entry).Name != 0; entry += sizeof(IMAGE_IMPORT_DESCRIPTOR))
            found.push_back(Text(Offset(Read<IMAGE_IMPORT_DESCRIPTOR>(entry).Name)));
        return found;
    }

private:
    template <class T>
    T Read(size_t offset) const
    {
        if (offset + sizeof(T) > bytes_.size())
            throw std::runtime_error("the image file is missing or too short");
        T value;
        std::memcpy(&value, &bytes_[offset], sizeof value);
        return value;
    }

    std::string Text(size_t offset) const { return &bytes_.at(offset); }

    IMAGE_NT_HEADERS Headers() const { return Read<IMAGE_NT_HEADERS>(headers_); }

    // Where in the file an address of the loaded image is kept.
    size_t Offset(DWORD address) const
    {
        const size_t sections =
            headers_ + offsetof(IMAGE_NT_HEADERS, OptionalHeader) + Headers().FileHeader.SizeOfOptionalHeader;
        for (size_t i = 0; i < Headers().FileHeader.NumberOfSections; ++i) {
            const auto section = Read<IMAGE_SECTION_HEADER>(sections + i * sizeof(IMAGE_SECTION_HEADER));
            if (address >= section.VirtualAddress && address - section.VirtualAddress < section.SizeOfRawData)
                return address - section.VirtualAddress + section.PointerToRawData;
        }
        throw std::runtime_error("an address outside the image's sections");
    }

    size_t Directory(size_t index) const
    {
        return Offset(Headers().OptionalHeader.DataDirectory[index].VirtualAddress);
    }

    std::vector<char> bytes_;
    size_t headers_ = 0;
};

}  // namespace zttest
