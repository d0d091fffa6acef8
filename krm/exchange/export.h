// The export mark of krm::exchange. What lives in krm/exchange/ says json.h.
#ifndef KRM_EXCHANGE_EXPORT_H_
#define KRM_EXCHANGE_EXPORT_H_

// As KRM_API of krm/core/types.h, for the library that is built upon it.
#if defined(KRM_STATIC)
#define KRM_EXCHANGE_API
#elif defined(_WIN32)
#if defined(KRM_BUILDING_EXCHANGE)
#define KRM_EXCHANGE_API __declspec(dllexport)
#else
#define KRM_EXCHANGE_API __declspec(dllimport)
#endif
#else
#define KRM_EXCHANGE_API __attribute__((visibility("default")))  ///< marks what krm::exchange exports
#endif

#endif  // KRM_EXCHANGE_EXPORT_H_
