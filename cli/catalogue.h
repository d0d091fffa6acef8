// What the documentation says of classes and fields, and how each class is written into the log: viewer/catalogue.json, which
// is a part of the program. Where it wasn't there when the program was built, nothing is found in it.
#ifndef KRM_CLI_CATALOGUE_H_
#define KRM_CLI_CATALOGUE_H_

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace krm_cli {

struct CatalogueField {
    std::string name;
    std::string type;     ///< as in the source: "CKRMList<CKRMCCommandDTCData>"
    std::string element;  ///< of a list; else empty
    std::string meaning;
};

/// A line that a class's dump writes.
struct CatalogueLine {
    std::string format;  ///< "[%s] Data[%d].m_ulEcuId=%d"
    std::string field;   ///< "Data[].m_ulEcuId"
};

struct CatalogueClass {
    std::string comment;
    std::string base;
    std::vector<CatalogueField> fields;  ///< its own
    std::vector<CatalogueLine> lines;    ///< its own
};

class Catalogue {
public:
    /// The program's.
    static const Catalogue& Get();
    /// Of this JSON; what isn't as it should be is left out.
    explicit Catalogue(const std::string& json);

    /// Null where there is no such class.
    const CatalogueClass* Find(std::string_view className) const;
    /// A field of a class or of its bases; null where there is none.
    const CatalogueField* FindField(std::string_view className, std::string_view field) const;
    const std::map<std::string, CatalogueClass, std::less<>>& Classes() const { return m_classes; }

private:
    std::map<std::string, CatalogueClass, std::less<>> m_classes;
};

}  // namespace krm_cli

#endif  // KRM_CLI_CATALOGUE_H_
