// Files of stored diagnosis data: which can be imported, and what one of them holds (the stored-data import family,
// `Dsdi`, command type 8).
//
// A file keeps, for each system, exactly what the live commands would have answered: whole answers of the diagnostic
// commands are embedded here. The records are plain structures.
//
// The interface knows these fields by their place: their types, order and defaults are fixed (docs/interface.md). The
// names are this library's choice and say what a file of this kind holds at that place. What the values mean is
// the engine's business: the library stores and copies them unchanged. No field may be added between or after them.
#ifndef KRM_MESSAGES_AUXILIARY_STORED_DATA_H_
#define KRM_MESSAGES_AUXILIARY_STORED_DATA_H_

#include "krm/core/list.h"
#include "krm/framework/message.h"
#include "krm/messages/diag/data_monitor.h"
#include "krm/messages/diag/freeze_frames.h"
#include "krm/messages/diag/trouble_codes.h"
#include "krm/messages/diag/vehicle.h"
#include "krm/platform/platform.h"

/// A date and time as the system that stored it keeps it. Only the engine knows the layout of the bytes.
class KRM_API CKRMCStoredDataSystemTime {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCStoredDataSystemTime(); }

    unsigned char m_uchSystemTime[16] = {};  ///< the 16 bytes
};
template <>
inline constexpr bool krm::kCopiedInOneStep<CKRMCStoredDataSystemTime> = true;
extern template class CKRMList<CKRMCStoredDataSystemTime>;

/// Two time stamps. Only the engine knows the layout of their bytes.
class KRM_API CKRMCStoredDataTimestamp {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCStoredDataTimestamp(); }

    unsigned char m_uchFirstStamp[7] = {};   ///< the 7 bytes of the first stamp
    unsigned char m_uchSecondStamp[7] = {};  ///< the 7 bytes of the second stamp
};
template <>
inline constexpr bool krm::kCopiedInOneStep<CKRMCStoredDataTimestamp> = true;
extern template class CKRMList<CKRMCStoredDataTimestamp>;

/// What a file says about itself.
class KRM_API CKRMCStoredDataFileHeader {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCStoredDataFileHeader(); }

    unsigned short m_ushFileType = 0;       ///< kind of file; the codes are the engine's
    unsigned short m_ushFileVersion = 0;    ///< version of the file's format
    krm_ulong m_ulHeaderNumber1 = 0;        ///< first of four numbers, which are the engine's
    krm_ulong m_ulHeaderNumber2 = 0;        ///< second number
    krm_ulong m_ulHeaderNumber3 = 0;        ///< third number
    krm_ulong m_ulHeaderNumber4 = 0;        ///< fourth number
    CKRMString m_strHeaderText1;            ///< first of three texts, which are the engine's
    CKRMString m_strHeaderText2;            ///< second text
    CKRMString m_strHeaderText3;            ///< third text
    CKRMCStoredDataTimestamp m_cTimestamp;  ///< time stamps of the file
};
template <>
inline constexpr bool krm::kCopiedInOneStep<CKRMCStoredDataFileHeader> = true;
extern template class CKRMList<CKRMCStoredDataFileHeader>;

/// One system, that is one ECU, in a file. CKRMCStoredDataSystemData begins with the same fields.
class KRM_API CKRMCStoredDataSystemInfo {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCStoredDataSystemInfo(); }

    unsigned short m_ushGroupId = 0;  ///< group that the system belongs to
    CKRMString m_strGroupName;        ///< name of the group
    krm_ulong m_ulSystemId = 0;       ///< system ID; the IDs are the engine's
    CKRMString m_strSystem;           ///< name of the system
};
template <>
inline constexpr bool krm::kCopiedInOneStep<CKRMCStoredDataSystemInfo> = true;
extern template class CKRMList<CKRMCStoredDataSystemInfo>;

/// One stored freeze frame.
class KRM_API CKRMCStoredDataFFD {
public:
    /// Leaves m_ushFFDNo as the memory is: whoever makes a freeze frame sets it before copying or reading it.
    CKRMCStoredDataFFD();
    /// Restores everything but m_ushFFDNo, which stays as it is: a frame that is filled anew keeps its number.
    void Clear();

    // Without initialiser on purpose. No `= 0` here, and no defaulted constructor in the class: `CKRMCStoredDataFFD()`
    // would zero the field with that.
    unsigned short m_ushFFDNo;                        ///< number of the frame; set by neither constructor nor Clear
    unsigned char m_uchFFDId = 0;                     ///< freeze-frame ID
    unsigned char m_uchFFDType = 0;                   ///< kind of freeze frame
    unsigned char m_uchSubFunction = 0;               ///< sub-function that it was read with
    CKRMCGetFFDCmdAdaptDataRcv m_cFirstFFD;           ///< first answer with the frame's items
    CKRMCGetFFDCmdAdaptDataRcv m_cSecondFFD;          ///< second answer with the frame's items
    CKRMCGetDiagDetailCmdAdaptDataRcv m_cDiagDetail;  ///< answer with the diagnosis details
};
template <>
inline constexpr bool krm::kCopiedInOneStep<CKRMCStoredDataFFD> = true;
extern template class CKRMList<CKRMCStoredDataFFD>;

/// One stored absolute freeze frame.
class KRM_API CKRMCStoredDataAbsFFD {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCStoredDataAbsFFD(); }

    unsigned char m_uchFFDId = 0;       ///< freeze-frame ID
    CKRMCGetFFDCmdAdaptDataRcv m_cFFD;  ///< answer with the frame's items
};
template <>
inline constexpr bool krm::kCopiedInOneStep<CKRMCStoredDataAbsFFD> = true;
extern template class CKRMList<CKRMCStoredDataAbsFFD>;

/// One point on the X axis of a graph.
class KRM_API CKRMCStoredDataXPos {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCStoredDataXPos(); }

    double m_dXPos = 0;    ///< position on the axis; its unit is the engine's
    CKRMString m_strXPos;  ///< text at that position
};
template <>
inline constexpr bool krm::kCopiedInOneStep<CKRMCStoredDataXPos> = true;
extern template class CKRMList<CKRMCStoredDataXPos>;

/// One file that can be imported.
class KRM_API CKRMCStoredDataImportFileInfo {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCStoredDataImportFileInfo(); }

    CKRMString m_strFileName;                           ///< name of the file, as GetImportStoredData carries it
    CKRMCStoredDataFileHeader m_cHeader;                ///< what the file says about itself
    CKRMCVehicleDecisionCmdAdaptDataRcv m_cVehicle;     ///< answer that identified the vehicle
    CKRMList<CKRMCStoredDataSystemInfo> m_cSystemList;  ///< systems that the file has data of
};
template <>
inline constexpr bool krm::kCopiedInOneStep<CKRMCStoredDataImportFileInfo> = true;
extern template class CKRMList<CKRMCStoredDataImportFileInfo>;

/// The stored data of one system. The first four fields are those of CKRMCStoredDataSystemInfo.
class KRM_API CKRMCStoredDataSystemData {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCStoredDataSystemData(); }

    unsigned short m_ushGroupId = 0;                ///< group that the system belongs to
    CKRMString m_strGroupName;                      ///< name of the group
    krm_ulong m_ulSystemId = 0;                     ///< system ID; the IDs are the engine's
    CKRMString m_strSystem;                         ///< name of the system
    CKRMCGetDTCCmdAdaptDataRcv m_cDTC;              ///< answer with the trouble codes
    CKRMList<CKRMCStoredDataFFD> m_cFFDList;        ///< freeze frames of the system
    CKRMCIsAbsFFDCmdAdaptDataRcv m_cIsAbsFFD;       ///< answer with the systems that have absolute freeze-frame data
    CKRMList<CKRMCStoredDataAbsFFD> m_cAbsFFDList;  ///< absolute freeze frames of the system
    CKRMCGetDataMonitorValueCmdAdaptDataRcv m_cDataMonitorValue;  ///< answer with the data monitor's values
};
template <>
inline constexpr bool krm::kCopiedInOneStep<CKRMCStoredDataSystemData> = true;
extern template class CKRMList<CKRMCStoredDataSystemData>;

/// The content of one file.
class KRM_API CKRMCStoredDataImportFileData {
public:
    /// Restores the values of a new object.
    void Clear() { *this = CKRMCStoredDataImportFileData(); }

    CKRMCStoredDataFileHeader m_cHeader;                ///< what the file says about itself
    CKRMCVehicleDecisionCmdAdaptDataRcv m_cVehicle;     ///< answer that identified the vehicle
    CKRMList<CKRMCStoredDataSystemData> m_cSystemList;  ///< data by system
    CKRMList<CKRMCStoredDataXPos> m_cFirstXPosList;     ///< first list of points on the X axis
    CKRMList<CKRMCStoredDataXPos> m_cSecondXPosList;    ///< second list of points on the X axis
};
template <>
inline constexpr bool krm::kCopiedInOneStep<CKRMCStoredDataImportFileData> = true;
extern template class CKRMList<CKRMCStoredDataImportFileData>;

/// What the messages of this family share beyond MessageOf: they write nothing to the operation log, not even type and
/// ID. Adds no data member and no virtual operation.
template <class Message, class Base, krm::CommandName command>
class StoredDataMessageOf : public krm::MessageOf<Message, Base, command> {
public:
    /// Writes nothing; returns 0.
    krm_long ErrWriteOperationLog() override { return 0; }
};

/// GetImportFileInfo asks for the files that can be imported.
class KRM_API CKRMCGetImportFileInfoDsdiAdaptDataSnd
    : public StoredDataMessageOf<CKRMCGetImportFileInfoDsdiAdaptDataSnd, CKRMCBaseDsdiAdaptDataSnd,
                                 "GetImportFileInfo"> {
public:
    CKRMString m_strPath;        ///< where to look for files; its meaning is the engine's
    krm_ulong m_ulFileType = 0;  ///< kind of files; the codes are the engine's
};

/// Answers GetImportFileInfo with the files that can be imported.
class KRM_API CKRMCGetImportFileInfoDsdiAdaptDataRcv
    : public StoredDataMessageOf<CKRMCGetImportFileInfoDsdiAdaptDataRcv, CKRMCBaseDsdiAdaptDataRcv,
                                 "GetImportFileInfo"> {
public:
    CKRMList<CKRMCStoredDataImportFileInfo> Data;  ///< files that can be imported, without their content
};

/// GetImportStoredData asks for the content of a file.
class KRM_API CKRMCGetImportStoredDataDsdiAdaptDataSnd
    : public StoredDataMessageOf<CKRMCGetImportStoredDataDsdiAdaptDataSnd, CKRMCBaseDsdiAdaptDataSnd,
                                 "GetImportStoredData"> {
public:
    CKRMString m_strFileName;  ///< name of the file, as GetImportFileInfo answers with it
};

/// Answers GetImportStoredData with the content.
class KRM_API CKRMCGetImportStoredDataDsdiAdaptDataRcv
    : public StoredDataMessageOf<CKRMCGetImportStoredDataDsdiAdaptDataRcv, CKRMCBaseDsdiAdaptDataRcv,
                                 "GetImportStoredData"> {
public:
    /// Restores type and ID and keeps the file's content; `Data.Clear()` drops that.
    void Clear() override;

    CKRMCStoredDataImportFileData Data;  ///< content of the file; Clear keeps it
};

#endif  // KRM_MESSAGES_AUXILIARY_STORED_DATA_H_
