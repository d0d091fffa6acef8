#include "cli/catalogue.h"

#include <rapidjson/document.h>

#include "cli/embedded.h"

namespace krm_cli {
namespace {

std::string Member(const rapidjson::Value& object, const char* name) {
    const auto found = object.FindMember(name);
    return found != object.MemberEnd() && found->value.IsString()
               ? std::string(found->value.GetString(), found->value.GetStringLength())
               : std::string();
}

template <class Take>
void ForEachIn(const rapidjson::Value& object, const char* name, Take take) {
    const auto found = object.FindMember(name);
    if (found == object.MemberEnd() || !found->value.IsArray()) {
        return;
    }
    for (const rapidjson::Value& element : found->value.GetArray()) {
        if (element.IsObject()) {
            take(element);
        }
    }
}

}  // namespace

const Catalogue& Catalogue::Get() {
    static const Catalogue catalogue(embedded::Whole(embedded::Catalogue()));
    return catalogue;
}

Catalogue::Catalogue(const std::string& json) {
    rapidjson::Document document;
    document.Parse(json.data(), json.size());
    if (document.HasParseError() || !document.IsObject()) {
        return;
    }
    // Comparing other than constant iterators is ambiguous in C++20.
    const rapidjson::Value& root = document;
    const auto classes = root.FindMember("classes");
    if (classes == root.MemberEnd() || !classes->value.IsObject()) {
        return;
    }
    for (const auto& member : classes->value.GetObject()) {
        if (!member.value.IsObject()) {
            continue;
        }
        CatalogueClass& known = m_classes[std::string(member.name.GetString(), member.name.GetStringLength())];
        known.comment = Member(member.value, "comment");
        known.base = Member(member.value, "base");
        ForEachIn(member.value, "fields", [&](const rapidjson::Value& field) {
            known.fields.push_back(
                {Member(field, "name"), Member(field, "type"), Member(field, "element"), Member(field, "meaning")});
        });
        ForEachIn(member.value, "lines", [&](const rapidjson::Value& line) {
            known.lines.push_back({Member(line, "format"), Member(line, "field")});
        });
    }
}

const CatalogueClass* Catalogue::Find(std::string_view className) const {
    const auto found = m_classes.find(className);
    return found == m_classes.end() ? nullptr : &found->second;
}

const CatalogueField* Catalogue::FindField(std::string_view className, std::string_view field) const {
    const CatalogueClass* known = Find(className);
    // A base of a base of itself would be a mistake; there are three levels.
    for (int level = 0; known != nullptr && level < 4; ++level) {
        for (const CatalogueField& candidate : known->fields) {
            if (candidate.name == field) {
                return &candidate;
            }
        }
        known = Find(known->base);
    }
    return nullptr;
}

}  // namespace krm_cli
