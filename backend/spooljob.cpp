// SPDX-License-Identifier: GPL-3.0-or-later
// The spool's names and the job description: rules only, no file is touched here.
#include "backend/spooljob.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <sstream>

namespace Spool {

namespace {

constexpr char systemRoot[] = "/var/spool/vellumio";
constexpr char infoHeader[] = "vellumio-job 1";
constexpr size_t stampDigits = 20;
constexpr size_t maxIdDigits = 10;

bool allDigits(const std::string &text, size_t maxLength)
{
    return !text.empty() && text.size() <= maxLength
        && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

std::optional<long long> number(const std::string &text)
{
    if (!allDigits(text, 18))
        return std::nullopt;
    return std::stoll(text);
}

int hexDigit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    return -1;
}

} // namespace

std::string rootFolder(const char *configured)
{
    if (configured && configured[0] == '/')
        return configured;
    return systemRoot;
}

std::string userFolder(const std::string &root, uid_t uid)
{
    return root + '/' + std::to_string(uid);
}

std::string folderStamp(const std::string &root)
{
    return root + "/folders.stamp";
}

std::string jobName(long long microseconds, const std::string &jobId)
{
    char stamp[stampDigits + 1];
    std::snprintf(stamp, sizeof stamp, "%020lld", microseconds);
    return std::string(stamp) + '-' + jobId;
}

bool isJobName(const std::string &name)
{
    return name.size() > stampDigits + 1 && name[stampDigits] == '-'
        && allDigits(name.substr(0, stampDigits), stampDigits)
        && allDigits(name.substr(stampDigits + 1), maxIdDigits);
}

std::vector<std::string> pendingJobs(std::vector<std::string> entries)
{
    entries.erase(std::remove_if(entries.begin(), entries.end(),
                      [](const std::string &name) { return !isJobName(name); }),
        entries.end());
    // Equal stamps are ordered by the job id as a number, not as text.
    std::sort(entries.begin(), entries.end(), [](const std::string &a, const std::string &b) {
        if (a.compare(0, stampDigits, b, 0, stampDigits) != 0)
            return a < b;
        return a.size() != b.size() ? a.size() < b.size() : a < b;
    });
    return entries;
}

std::optional<Arguments> parseArguments(const std::vector<std::string> &words)
{
    if (words.size() != 5 && words.size() != 6)
        return std::nullopt;
    Arguments arguments {words[0], words[1], words[2], words[3], words[4],
        words.size() == 6 ? words[5] : std::string()};
    if (!allDigits(arguments.jobId, maxIdDigits) || arguments.user.empty())
        return std::nullopt;
    return arguments;
}

std::string encodeValue(const std::string &value)
{
    std::string encoded;
    encoded.reserve(value.size());
    for (const char c : value) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x20 || byte == 0x7f || c == '%') {
            char escape[4];
            std::snprintf(escape, sizeof escape, "%%%02X", byte);
            encoded += escape;
        } else {
            encoded += c;
        }
    }
    return encoded;
}

std::optional<std::string> decodeValue(const std::string &text)
{
    std::string value;
    value.reserve(text.size());
    for (size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if (byte < 0x20 || byte == 0x7f)
            return std::nullopt;
        if (text[i] != '%') {
            value += text[i];
            continue;
        }
        if (i + 2 >= text.size())
            return std::nullopt;
        const int high = hexDigit(text[i + 1]), low = hexDigit(text[i + 2]);
        if (high < 0 || low < 0)
            return std::nullopt;
        value += static_cast<char>(high * 16 + low);
        i += 2;
    }
    return value;
}

namespace {

// The options of a job as the scheduler writes them: "name=value" or a bare name (true), or
// "noname" (false), apart by blanks; quotes and backslashes keep blanks in a value.
std::map<std::string, std::string> parseOptions(const std::string &text)
{
    std::map<std::string, std::string> options;
    size_t at = 0;
    while (at < text.size()) {
        while (at < text.size() && (text[at] == ' ' || text[at] == '\t'))
            ++at;
        std::string word;
        char quote = 0;
        for (; at < text.size() && (quote || (text[at] != ' ' && text[at] != '\t')); ++at) {
            const char c = text[at];
            if (c == '\\' && at + 1 < text.size())
                word += text[++at];
            else if (quote && c == quote)
                quote = 0;
            else if (!quote && (c == '\'' || c == '"'))
                quote = c;
            else
                word += c;
        }
        if (word.empty())
            continue;
        const size_t equals = word.find('=');
        if (equals != std::string::npos)
            options[word.substr(0, equals)] = word.substr(equals + 1);
        else if (word.compare(0, 2, "no") == 0)
            options[word.substr(2)] = "false";
        else
            options[word] = "true";
    }
    return options;
}

} // namespace

std::string layoutFilter(const std::string &options, const std::string &contentType)
{
    const std::map<std::string, std::string> given = parseOptions(options);
    const auto value = [&given](const char *name) {
        const auto found = given.find(name);
        return found == given.end() ? std::string() : found->second;
    };
    const auto set = [&](const char *name, const std::string &neutral) {
        const std::string text = value(name);
        return !text.empty() && text != neutral;
    };
    const std::string orientation = value("orientation-requested");
    const bool layout = set("page-ranges", std::string()) || set("number-up", "1")
        || set("page-set", "all") || set("outputorder", "normal") || value("mirror") == "true"
        || value("fit-to-page") == "true" || value("fitplot") == "true"
        || value("landscape") == "true" || orientation == "4" || orientation == "5"
        || orientation == "6";
    if (!layout)
        return {};
    if (contentType == "application/pdf" || contentType == "application/vnd.cups-pdf")
        return "pdftopdf";
    if (contentType == "application/postscript")
        return "pstops";
    return {};
}

std::string formatInfo(const Info &info)
{
    std::ostringstream out;
    out << infoHeader << '\n'
        << "job-id=" << encodeValue(info.jobId) << '\n'
        << "user=" << encodeValue(info.user) << '\n'
        << "title=" << encodeValue(info.title) << '\n'
        << "copies=" << encodeValue(info.copies) << '\n'
        << "options=" << encodeValue(info.options) << '\n'
        << "time=" << info.time << '\n'
        << "size=" << info.size << '\n';
    return out.str();
}

std::optional<Info> parseInfo(const std::string &text)
{
    // A description cut short lacks its last line's end.
    if (text.empty() || text.back() != '\n')
        return std::nullopt;
    std::istringstream in(text);
    std::string line;
    if (!std::getline(in, line) || line != infoHeader)
        return std::nullopt;
    std::map<std::string, std::string> values;
    while (std::getline(in, line)) {
        const size_t equals = line.find('=');
        if (equals == std::string::npos)
            return std::nullopt;
        const std::optional<std::string> value = decodeValue(line.substr(equals + 1));
        if (!value || !values.emplace(line.substr(0, equals), *value).second)
            return std::nullopt;
    }
    Info info;
    const std::optional<long long> time = number(values["time"]), size = number(values["size"]);
    if (values.size() != 7 || !time || !size || !allDigits(values["job-id"], maxIdDigits))
        return std::nullopt;
    info.jobId = values["job-id"];
    info.user = values["user"];
    info.title = values["title"];
    info.copies = values["copies"];
    info.options = values["options"];
    info.time = *time;
    info.size = *size;
    return info;
}

UidRange uidRange(const std::string &loginDefs)
{
    UidRange range;
    std::istringstream in(loginDefs);
    std::string line;
    while (std::getline(in, line)) {
        std::istringstream words(line);
        std::string name, value;
        if (!(words >> name >> value) || !allDigits(value, 9))
            continue;
        if (name == "UID_MIN")
            range.first = static_cast<uid_t>(std::stoul(value));
        else if (name == "UID_MAX")
            range.last = static_cast<uid_t>(std::stoul(value));
    }
    return range;
}

UserVerdict judgeUser(bool found, uid_t uid, const UidRange &range)
{
    if (!found)
        return UserVerdict::Unknown;
    if (uid == 0 || uid < range.first || uid > range.last)
        return UserVerdict::SystemAccount;
    return UserVerdict::Accepted;
}

std::string deviceLine()
{
    return "file vellumio:/ \"Vellumio\" \"Vellumio virtual printer\"";
}

} // namespace Spool
