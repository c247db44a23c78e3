// The tables of the documentation.
#include "tests/support/documents.h"

#include <fstream>
#include <sstream>

#include "tests/support/profile.h"
#include "tests/support/values.h"

namespace zttest {
namespace {

// The sources that this program was built from, as its system sees them.
std::string SourceFile(const std::string& name)
{
    std::string path = __FILE__;
    for (char& c : path)
        c = c == '\\' ? '/' : c;
    path = path.substr(0, path.rfind("/tests/")) + "/" + name;
#ifdef _WIN32
    if (path[0] == '/')
        return "Z:" + path;
#endif
    return path;
}

// A cell without the blanks around it and without the marks of code.
std::string CellText(const std::string& cell)
{
    const size_t first = cell.find_first_not_of(' ');
    if (first == std::string::npos)
        return "";
    const size_t last = cell.find_last_not_of(' ');
    const std::string text = cell.substr(first, last - first + 1);
    if (text.size() >= 2 && text.front() == '`' && text.back() == '`')
        return text.substr(1, text.size() - 2);
    return text;
}

std::vector<std::string> CellsOf(const std::string& line)
{
    std::vector<std::string> cells;
    std::istringstream in(line.substr(1));
    for (std::string cell; std::getline(in, cell, '|');)
        cells.push_back(CellText(cell));
    return cells;
}

DocumentRow RowOf(int line, const std::vector<std::string>& headings, const std::vector<std::string>& cells)
{
    DocumentRow row = {line, {}, ""};
    for (size_t i = 0; i < headings.size() && i < cells.size(); ++i)
        row.cells[headings[i]] = cells[i];
    return row;
}

// "types" of "docs/manual/types.md"; with letters alone, as the name of a test has them.
std::string PageName(const std::string& file)
{
    const size_t start = file.rfind('/') + 1;
    std::string name = file.substr(start, file.rfind('.') - start);
    for (char& c : name)
        c = c == '-' ? '_' : c;
    return name;
}

bool ReadLine(std::istream& in, std::string& line)
{
    if (!std::getline(in, line))
        return false;
    if (!line.empty() && line.back() == '\r')
        line.pop_back();
    return true;
}

std::vector<DocumentRow> AllRows(const std::string& name)
{
    std::vector<DocumentRow> rows;
    std::vector<std::string> headings;
    std::ifstream file(SourceFile(name));
    int number = 0;
    for (std::string line; ReadLine(file, line);) {
        ++number;
        if (line.empty() || line[0] != '|')
            headings.clear();
        else if (headings.empty())
            headings = CellsOf(line);
        else if (line.compare(0, 4, "|---") != 0)
            rows.push_back(RowOf(number, headings, CellsOf(line)));
    }
    return rows;
}

}  // namespace

std::string SourceText(const std::string& name)
{
    std::ifstream file(SourceFile(name));
    std::string text;
    for (std::string line; ReadLine(file, line);)
        text += line + '\n';
    return text;
}

void PrintTo(const DocumentRow& row, std::ostream* out)
{
    *out << "line " << row.line << ':';
    for (const auto& cell : row.cells)
        *out << ' ' << cell.first << " \"" << cell.second << '"';
}

std::vector<DocumentRow> DocumentRows(const std::string& file, const std::vector<const char*>& columns)
{
    std::vector<DocumentRow> found;
    for (DocumentRow row : AllRows(file)) {
        row.page = PageName(file);
        bool complete = true;
        for (const char* column : columns)
            complete = complete && row.Has(column);
        if (complete)
            found.push_back(row);
    }
    return found;
}

std::string LineName(const DocumentRow& row)
{
    return "Line" + std::to_string(row.line);
}

int32_t TypeNamed(const std::string& name)
{
    static const std::map<std::string, int32_t> types = {
        {"string",    DT_STRING  },
        {"number",    DT_NUMBER  },
        {"decimal",   DT_DECIMAL },
        {"date",      DT_DATE    },
        {"time",      DT_TIME    },
        {"date-time", DT_DATETIME}
    };
    const auto found = types.find(name);
    if (found != types.end())
        return found->second;
    ADD_FAILURE() << "no type is called " << name;
    return DT_STRING;
}

const RegionalSet& SettingsNamed(const std::string& name)
{
    static const std::map<std::string, const RegionalSet*> sets = {
        {"US",     &kUnitedStates},
        {"German", &kGerman      },
        {"French", &kFrench      },
        {"Swiss",  &kSwiss       },
        {"ISO",    &kIso         }
    };
    const auto found = sets.find(name);
    if (found != sets.end())
        return *found->second;
    ADD_FAILURE() << "unknown settings " << name;
    return kUnitedStates;
}

std::string WithTabs(std::string text)
{
    for (size_t at = text.find("<tab>"); at != std::string::npos; at = text.find("<tab>"))
        text.replace(at, 5, "\t");
    return text;
}

}  // namespace zttest
