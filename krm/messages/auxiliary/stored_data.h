// Files of stored diagnosis data: which can be imported, and what one of them holds (the stored-data import family,
// `Dsdi`, command type 8).
//
// A file keeps, for each system, exactly what the live commands would have answered: whole answers of the diagnostic
// commands are embedded here. The records are plain structures.
//
// The interface fixes types, order and defaults of the fields, but gives them no names; the names here say what a file
// of this kind holds at that place. What the values mean is the engine's business: the library stores and copies them
// unchanged. No field may be added between or after them.
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
    void Clear() { *this = CKRMCStoredDataSystemTime(); }

    unsigned char m_uchSystemTime[16] = {};
};
extern template class CKRMList<CKRMCStoredDataSystemTime>;

/// Two time stamps. Only the engine knows the layout of their bytes.
class KRM_API CKRMCStoredDataTimestamp {
public:
    void Clear() { *this = CKRMCStoredDataTimestamp(); }

    unsigned char m_uchFirstStamp[7] = {};
    unsigned char m_uchSecondStamp[7] = {};
};
extern template class CKRMList<CKRMCStoredDataTimestamp>;

/// What a file says about itself. The four numbers and the three texts are the engine's.
class KRM_API CKRMCStoredDataFileHeader {
public:
    void Clear() { *this = CKRMCStoredDataFileHeader(); }

    unsigned short m_ushFileType = 0;       ///< kind of file
    unsigned short m_ushFileVersion = 0;    ///< version of its format
    krm_ulong m_ulHeaderNumber1 = 0;        ///< first of four numbers
    krm_ulong m_ulHeaderNumber2 = 0;        ///< second
    krm_ulong m_ulHeaderNumber3 = 0;        ///< third
    krm_ulong m_ulHeaderNumber4 = 0;        ///< fourth
    CKRMString m_strHeaderText1;            ///< first of three texts
    CKRMString m_strHeaderText2;            ///< second
    CKRMString m_strHeaderText3;            ///< third
    CKRMCStoredDataTimestamp m_cTimestamp;  ///< when it was stored
};
extern template class CKRMList<CKRMCStoredDataFileHeader>;

/// One system, that is one ECU, in a file. CKRMCStoredDataSystemData begins with the same fields.
class KRM_API CKRMCStoredDataSystemInfo {
public:
    void Clear() { *this = CKRMCStoredDataSystemInfo(); }

    unsigned short m_ushGroupId = 0;  ///< group that the system belongs to
    CKRMString m_strGroupName;        ///< name of the group
    krm_ulong m_ulSystemId = 0;       ///< the system
    CKRMString m_strSystem;           ///< name of the system
};
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
    unsigned char m_uchFFDId = 0;                     ///< freeze frame ID
    unsigned char m_uchFFDType = 0;                   ///< kind of freeze frame
    unsigned char m_uchSubFunction = 0;               ///< sub-function that it was read with
    CKRMCGetFFDCmdAdaptDataRcv m_cFirstFFD;           ///< first answer with freeze-frame items
    CKRMCGetFFDCmdAdaptDataRcv m_cSecondFFD;          ///< second answer
    CKRMCGetDiagDetailCmdAdaptDataRcv m_cDiagDetail;  ///< diagnosis details
};
extern template class CKRMList<CKRMCStoredDataFFD>;

/// One stored freeze frame with absolute time.
class KRM_API CKRMCStoredDataAbsFFD {
public:
    void Clear() { *this = CKRMCStoredDataAbsFFD(); }

    unsigned char m_uchFFDId = 0;       ///< freeze frame ID
    CKRMCGetFFDCmdAdaptDataRcv m_cFFD;  ///< the freeze-frame items
};
extern template class CKRMList<CKRMCStoredDataAbsFFD>;

/// One point on the X axis of a graph.
class KRM_API CKRMCStoredDataXPos {
public:
    void Clear() { *this = CKRMCStoredDataXPos(); }

    double m_dXPos = 0;    ///< X position
    CKRMString m_strXPos;  ///< text at that position
};
extern template class CKRMList<CKRMCStoredDataXPos>;

/// One file that can be imported.
class KRM_API CKRMCStoredDataImportFileInfo {
public:
    void Clear() { *this = CKRMCStoredDataImportFileInfo(); }

    CKRMString m_strFileName;                           ///< the file
    CKRMCStoredDataFileHeader m_cHeader;                ///< its header
    CKRMCVehicleDecisionCmdAdaptDataRcv m_cVehicle;     ///< vehicle identification
    CKRMList<CKRMCStoredDataSystemInfo> m_cSystemList;  ///< the systems in it
};
extern template class CKRMList<CKRMCStoredDataImportFileInfo>;

/// The stored data of one system. The first four fields are those of CKRMCStoredDataSystemInfo.
class KRM_API CKRMCStoredDataSystemData {
public:
    void Clear() { *this = CKRMCStoredDataSystemData(); }

    unsigned short m_ushGroupId = 0;                              ///< group that the system belongs to
    CKRMString m_strGroupName;                                    ///< name of the group
    krm_ulong m_ulSystemId = 0;                                   ///< the system
    CKRMString m_strSystem;                                       ///< name of the system
    CKRMCGetDTCCmdAdaptDataRcv m_cDTC;                            ///< trouble codes
    CKRMList<CKRMCStoredDataFFD> m_cFFDList;                      ///< freeze frames
    CKRMCIsAbsFFDCmdAdaptDataRcv m_cIsAbsFFD;                     ///< systems that have some with absolute time
    CKRMList<CKRMCStoredDataAbsFFD> m_cAbsFFDList;                ///< freeze frames with absolute time
    CKRMCGetDataMonitorValueCmdAdaptDataRcv m_cDataMonitorValue;  ///< values of the data monitor
};
extern template class CKRMList<CKRMCStoredDataSystemData>;

/// The content of one file.
class KRM_API CKRMCStoredDataImportFileData {
public:
    void Clear() { *this = CKRMCStoredDataImportFileData(); }

    CKRMCStoredDataFileHeader m_cHeader;                ///< header
    CKRMCVehicleDecisionCmdAdaptDataRcv m_cVehicle;     ///< vehicle identification
    CKRMList<CKRMCStoredDataSystemData> m_cSystemList;  ///< data by system
    CKRMList<CKRMCStoredDataXPos> m_cFirstXPosList;     ///< first list of points on the X axis
    CKRMList<CKRMCStoredDataXPos> m_cSecondXPosList;    ///< second list
};
extern template class CKRMList<CKRMCStoredDataImportFileData>;

/// What the messages of this family share beyond MessageOf: they write nothing to the operation log, not even type and
/// ID. Adds no data member and no virtual operation.
template <class Message, class Base, krm::CommandName command>
class StoredDataMessageOf : public krm::MessageOf<Message, Base, command> {
public:
    /// Writes nothing; returns 0.
    krm_long ErrWriteOperationLog() override { return 0; }
};

/// Asks which files can be imported.
class KRM_API CKRMCGetImportFileInfoDsdiAdaptDataSnd
    : public StoredDataMessageOf<CKRMCGetImportFileInfoDsdiAdaptDataSnd, CKRMCBaseDsdiAdaptDataSnd,
                                 "GetImportFileInfo"> {
public:
    CKRMString m_strPath;        ///< where to look for files; its meaning is the engine's
    krm_ulong m_ulFileType = 0;  ///< kind of files; the codes are the engine's
};

/// The files that can be imported.
class KRM_API CKRMCGetImportFileInfoDsdiAdaptDataRcv
    : public StoredDataMessageOf<CKRMCGetImportFileInfoDsdiAdaptDataRcv, CKRMCBaseDsdiAdaptDataRcv,
                                 "GetImportFileInfo"> {
public:
    CKRMList<CKRMCStoredDataImportFileInfo> Data;  ///< the files
};

/// Asks for the content of one file.
class KRM_API CKRMCGetImportStoredDataDsdiAdaptDataSnd
    : public StoredDataMessageOf<CKRMCGetImportStoredDataDsdiAdaptDataSnd, CKRMCBaseDsdiAdaptDataSnd,
                                 "GetImportStoredData"> {
public:
    CKRMString m_strFileName;  ///< the file, as in CKRMCStoredDataImportFileInfo
};

/// The content of the file.
class KRM_API CKRMCGetImportStoredDataDsdiAdaptDataRcv
    : public StoredDataMessageOf<CKRMCGetImportStoredDataDsdiAdaptDataRcv, CKRMCBaseDsdiAdaptDataRcv,
                                 "GetImportStoredData"> {
public:
    /// Restores type and ID and keeps the file's content; `Data.Clear()` drops that.
    void Clear() override;

    CKRMCStoredDataImportFileData Data;  ///< the content
};

#endif  // KRM_MESSAGES_AUXILIARY_STORED_DATA_H_
