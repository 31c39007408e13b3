-- The empty ledger: every table of Fenwold, its columns, the checks that refuse what the Jet engine
-- database engine refused, and the reserved rows of code 0. fenwold-admin new-ledger writes a new
-- pcdb.mdb from this text; the window program itself creates nothing.
--
-- Declared types tell the database layer the type of each column, as Jet's field types did:
--   SMALLINT   key and flag columns, whole numbers -32768..32767
--   INTEGER    long columns ("数値"), whole numbers of 32 bits
--   TEXT       text of at most 255 characters ("文字"), compared without regard to case
--   LONGTEXT   text of any length
--   DATETIME   a calendar date ("日付"), stored as 'yyyy/mm/dd' or 'yyyy/mm/dd hh:nn:ss'
-- Each check is named <column>_<kind> so that the database layer can tell which refusal it met.
-- Everything here uses SQLite's own functions only, so any SQLite tool can still write the file.

-- The administrative record of a computer; one row per computer, kept when it is retired.
CREATE TABLE tbl_Computer_List (
    MainKey SMALLINT NOT NULL PRIMARY KEY
        CONSTRAINT MainKey_smallint CHECK (MainKey IS NULL OR (typeof(MainKey) = 'integer' AND MainKey BETWEEN -32768 AND 32767)),
    Location_Code SMALLINT
        CONSTRAINT Location_Code_smallint CHECK (Location_Code IS NULL OR (typeof(Location_Code) = 'integer' AND Location_Code BETWEEN -32768 AND 32767)),
    User_Code SMALLINT
        CONSTRAINT User_Code_smallint CHECK (User_Code IS NULL OR (typeof(User_Code) = 'integer' AND User_Code BETWEEN -32768 AND 32767)),
    Manufacturer_Code SMALLINT
        CONSTRAINT Manufacturer_Code_smallint CHECK (Manufacturer_Code IS NULL OR (typeof(Manufacturer_Code) = 'integer' AND Manufacturer_Code BETWEEN -32768 AND 32767)),
    Model_Code SMALLINT
        CONSTRAINT Model_Code_smallint CHECK (Model_Code IS NULL OR (typeof(Model_Code) = 'integer' AND Model_Code BETWEEN -32768 AND 32767)),
    Asset_Code TEXT COLLATE NOCASE
        CONSTRAINT Asset_Code_text CHECK (length(Asset_Code) <= 255),
    Type_Number TEXT COLLATE NOCASE
        CONSTRAINT Type_Number_text CHECK (length(Type_Number) <= 255),
    Sereals_Number TEXT COLLATE NOCASE
        CONSTRAINT Sereals_Number_text CHECK (length(Sereals_Number) <= 255),
    "Update" TEXT COLLATE NOCASE
        CONSTRAINT Update_text CHECK (length("Update") <= 255),
    Selling_Agent TEXT COLLATE NOCASE
        CONSTRAINT Selling_Agent_text CHECK (length(Selling_Agent) <= 255),
    Leasing_Company TEXT COLLATE NOCASE
        CONSTRAINT Leasing_Company_text CHECK (length(Leasing_Company) <= 255),
    Leasing_Contract_Number TEXT COLLATE NOCASE
        CONSTRAINT Leasing_Contract_Number_text CHECK (length(Leasing_Contract_Number) <= 255),
    Leasing_StartDate DATETIME,
    Leasing_EndDate DATETIME,
    Leasing_Monthly_Amount INTEGER
        CONSTRAINT Leasing_Monthly_Amount_long CHECK (Leasing_Monthly_Amount IS NULL OR (typeof(Leasing_Monthly_Amount) = 'integer' AND Leasing_Monthly_Amount BETWEEN -2147483648 AND 2147483647)),
    Cash_Payment INTEGER
        CONSTRAINT Cash_Payment_long CHECK (Cash_Payment IS NULL OR (typeof(Cash_Payment) = 'integer' AND Cash_Payment BETWEEN -2147483648 AND 2147483647)),
    Maintenance_Agent TEXT COLLATE NOCASE
        CONSTRAINT Maintenance_Agent_text CHECK (length(Maintenance_Agent) <= 255),
    Maintenance_Contract_Number TEXT COLLATE NOCASE
        CONSTRAINT Maintenance_Contract_Number_text CHECK (length(Maintenance_Contract_Number) <= 255),
    Comment TEXT COLLATE NOCASE
        CONSTRAINT Comment_text CHECK (length(Comment) <= 255),
    Deleted_Flug SMALLINT DEFAULT 0
        CONSTRAINT Deleted_Flug_smallint CHECK (Deleted_Flug IS NULL OR (typeof(Deleted_Flug) = 'integer' AND Deleted_Flug BETWEEN -32768 AND 32767)),
    Remove_Date DATETIME
);

-- The inventory record of a computer, under the same MainKey as its tbl_Computer_List row.
-- Capacities are bare numbers in the unit their _unit column names.
CREATE TABLE tbl_Pclist (
    MainKey SMALLINT NOT NULL PRIMARY KEY
        CONSTRAINT MainKey_smallint CHECK (MainKey IS NULL OR (typeof(MainKey) = 'integer' AND MainKey BETWEEN -32768 AND 32767)),
    "Update" TEXT COLLATE NOCASE
        CONSTRAINT Update_text CHECK (length("Update") <= 255),
    Computer_Name TEXT COLLATE NOCASE
        CONSTRAINT Computer_Name_text CHECK (length(Computer_Name) <= 255),
    Workgroup TEXT COLLATE NOCASE
        CONSTRAINT Workgroup_text CHECK (length(Workgroup) <= 255),
    IPAddress TEXT COLLATE NOCASE
        CONSTRAINT IPAddress_text CHECK (length(IPAddress) <= 255),
    IPAddress_16num TEXT COLLATE NOCASE
        CONSTRAINT IPAddress_16num_text CHECK (length(IPAddress_16num) <= 255),
    MacAddress TEXT COLLATE NOCASE
        CONSTRAINT MacAddress_text CHECK (length(MacAddress) <= 255),
    Operating_System TEXT COLLATE NOCASE
        CONSTRAINT Operating_System_text CHECK (length(Operating_System) <= 255),
    Version_Number TEXT COLLATE NOCASE
        CONSTRAINT Version_Number_text CHECK (length(Version_Number) <= 255),
    ServicePack TEXT COLLATE NOCASE
        CONSTRAINT ServicePack_text CHECK (length(ServicePack) <= 255),
    ProductID TEXT COLLATE NOCASE
        CONSTRAINT ProductID_text CHECK (length(ProductID) <= 255),
    ProductKey TEXT COLLATE NOCASE
        CONSTRAINT ProductKey_text CHECK (length(ProductKey) <= 255),
    OEM_Manufacturer TEXT COLLATE NOCASE
        CONSTRAINT OEM_Manufacturer_text CHECK (length(OEM_Manufacturer) <= 255),
    OEM_Model TEXT COLLATE NOCASE
        CONSTRAINT OEM_Model_text CHECK (length(OEM_Model) <= 255),
    IE_Version TEXT COLLATE NOCASE
        CONSTRAINT IE_Version_text CHECK (length(IE_Version) <= 255),
    IE_SP TEXT COLLATE NOCASE
        CONSTRAINT IE_SP_text CHECK (length(IE_SP) <= 255),
    Start_Page TEXT COLLATE NOCASE
        CONSTRAINT Start_Page_text CHECK (length(Start_Page) <= 255),
    Resolution TEXT COLLATE NOCASE
        CONSTRAINT Resolution_text CHECK (length(Resolution) <= 255),
    Memory_Full INTEGER
        CONSTRAINT Memory_Full_long CHECK (Memory_Full IS NULL OR (typeof(Memory_Full) = 'integer' AND Memory_Full BETWEEN -2147483648 AND 2147483647)),
    Memory_Used INTEGER
        CONSTRAINT Memory_Used_long CHECK (Memory_Used IS NULL OR (typeof(Memory_Used) = 'integer' AND Memory_Used BETWEEN -2147483648 AND 2147483647)),
    Memory_Free INTEGER
        CONSTRAINT Memory_Free_long CHECK (Memory_Free IS NULL OR (typeof(Memory_Free) = 'integer' AND Memory_Free BETWEEN -2147483648 AND 2147483647)),
    Pagefile_Full INTEGER
        CONSTRAINT Pagefile_Full_long CHECK (Pagefile_Full IS NULL OR (typeof(Pagefile_Full) = 'integer' AND Pagefile_Full BETWEEN -2147483648 AND 2147483647)),
    Pagefile_Used INTEGER
        CONSTRAINT Pagefile_Used_long CHECK (Pagefile_Used IS NULL OR (typeof(Pagefile_Used) = 'integer' AND Pagefile_Used BETWEEN -2147483648 AND 2147483647)),
    Pagefile_Free INTEGER
        CONSTRAINT Pagefile_Free_long CHECK (Pagefile_Free IS NULL OR (typeof(Pagefile_Free) = 'integer' AND Pagefile_Free BETWEEN -2147483648 AND 2147483647)),
    SysHD_Full INTEGER
        CONSTRAINT SysHD_Full_long CHECK (SysHD_Full IS NULL OR (typeof(SysHD_Full) = 'integer' AND SysHD_Full BETWEEN -2147483648 AND 2147483647)),
    SysHD_Used INTEGER
        CONSTRAINT SysHD_Used_long CHECK (SysHD_Used IS NULL OR (typeof(SysHD_Used) = 'integer' AND SysHD_Used BETWEEN -2147483648 AND 2147483647)),
    SysHD_Free INTEGER
        CONSTRAINT SysHD_Free_long CHECK (SysHD_Free IS NULL OR (typeof(SysHD_Free) = 'integer' AND SysHD_Free BETWEEN -2147483648 AND 2147483647)),
    Memory_Full_unit TEXT COLLATE NOCASE
        CONSTRAINT Memory_Full_unit_text CHECK (length(Memory_Full_unit) <= 255),
    Memory_Used_unit TEXT COLLATE NOCASE
        CONSTRAINT Memory_Used_unit_text CHECK (length(Memory_Used_unit) <= 255),
    Memory_Free_unit TEXT COLLATE NOCASE
        CONSTRAINT Memory_Free_unit_text CHECK (length(Memory_Free_unit) <= 255),
    Pagefile_Full_unit TEXT COLLATE NOCASE
        CONSTRAINT Pagefile_Full_unit_text CHECK (length(Pagefile_Full_unit) <= 255),
    Pagefile_Used_unit TEXT COLLATE NOCASE
        CONSTRAINT Pagefile_Used_unit_text CHECK (length(Pagefile_Used_unit) <= 255),
    Pagefile_Free_unit TEXT COLLATE NOCASE
        CONSTRAINT Pagefile_Free_unit_text CHECK (length(Pagefile_Free_unit) <= 255),
    SysHD_Full_unit TEXT COLLATE NOCASE
        CONSTRAINT SysHD_Full_unit_text CHECK (length(SysHD_Full_unit) <= 255),
    SysHD_Used_unit TEXT COLLATE NOCASE
        CONSTRAINT SysHD_Used_unit_text CHECK (length(SysHD_Used_unit) <= 255),
    SysHD_Free_unit TEXT COLLATE NOCASE
        CONSTRAINT SysHD_Free_unit_text CHECK (length(SysHD_Free_unit) <= 255),
    SysHD_Driveletter TEXT COLLATE NOCASE
        CONSTRAINT SysHD_Driveletter_text CHECK (length(SysHD_Driveletter) <= 255),
    Floppydisk_Drive SMALLINT
        CONSTRAINT Floppydisk_Drive_smallint CHECK (Floppydisk_Drive IS NULL OR (typeof(Floppydisk_Drive) = 'integer' AND Floppydisk_Drive BETWEEN -32768 AND 32767)),
    Cdrom_Drive SMALLINT
        CONSTRAINT Cdrom_Drive_smallint CHECK (Cdrom_Drive IS NULL OR (typeof(Cdrom_Drive) = 'integer' AND Cdrom_Drive BETWEEN -32768 AND 32767)),
    DVD_Drive SMALLINT
        CONSTRAINT DVD_Drive_smallint CHECK (DVD_Drive IS NULL OR (typeof(DVD_Drive) = 'integer' AND DVD_Drive BETWEEN -32768 AND 32767)),
    Cdr_Drive SMALLINT
        CONSTRAINT Cdr_Drive_smallint CHECK (Cdr_Drive IS NULL OR (typeof(Cdr_Drive) = 'integer' AND Cdr_Drive BETWEEN -32768 AND 32767)),
    Mo_Drive SMALLINT
        CONSTRAINT Mo_Drive_smallint CHECK (Mo_Drive IS NULL OR (typeof(Mo_Drive) = 'integer' AND Mo_Drive BETWEEN -32768 AND 32767)),
    Combo_Drive SMALLINT
        CONSTRAINT Combo_Drive_smallint CHECK (Combo_Drive IS NULL OR (typeof(Combo_Drive) = 'integer' AND Combo_Drive BETWEEN -32768 AND 32767)),
    CPU_Name TEXT COLLATE NOCASE
        CONSTRAINT CPU_Name_text CHECK (length(CPU_Name) <= 255),
    CPU_NameString TEXT COLLATE NOCASE
        CONSTRAINT CPU_NameString_text CHECK (length(CPU_NameString) <= 255),
    CPU_ID TEXT COLLATE NOCASE
        CONSTRAINT CPU_ID_text CHECK (length(CPU_ID) <= 255),
    CPU_SerialNumber TEXT COLLATE NOCASE
        CONSTRAINT CPU_SerialNumber_text CHECK (length(CPU_SerialNumber) <= 255),
    CPU_Clock INTEGER
        CONSTRAINT CPU_Clock_long CHECK (CPU_Clock IS NULL OR (typeof(CPU_Clock) = 'integer' AND CPU_Clock BETWEEN -2147483648 AND 2147483647)),
    CPU_Unit INTEGER
        CONSTRAINT CPU_Unit_long CHECK (CPU_Unit IS NULL OR (typeof(CPU_Unit) = 'integer' AND CPU_Unit BETWEEN -2147483648 AND 2147483647)),
    CPU_Type INTEGER
        CONSTRAINT CPU_Type_long CHECK (CPU_Type IS NULL OR (typeof(CPU_Type) = 'integer' AND CPU_Type BETWEEN -2147483648 AND 2147483647)),
    CPU_Family INTEGER
        CONSTRAINT CPU_Family_long CHECK (CPU_Family IS NULL OR (typeof(CPU_Family) = 'integer' AND CPU_Family BETWEEN -2147483648 AND 2147483647)),
    CPU_Model INTEGER
        CONSTRAINT CPU_Model_long CHECK (CPU_Model IS NULL OR (typeof(CPU_Model) = 'integer' AND CPU_Model BETWEEN -2147483648 AND 2147483647)),
    CPU_Stepping INTEGER
        CONSTRAINT CPU_Stepping_long CHECK (CPU_Stepping IS NULL OR (typeof(CPU_Stepping) = 'integer' AND CPU_Stepping BETWEEN -2147483648 AND 2147483647)),
    CPU_L1_Instruction_Cache INTEGER
        CONSTRAINT CPU_L1_Instruction_Cache_long CHECK (CPU_L1_Instruction_Cache IS NULL OR (typeof(CPU_L1_Instruction_Cache) = 'integer' AND CPU_L1_Instruction_Cache BETWEEN -2147483648 AND 2147483647)),
    CPU_L1_Data_Cache INTEGER
        CONSTRAINT CPU_L1_Data_Cache_long CHECK (CPU_L1_Data_Cache IS NULL OR (typeof(CPU_L1_Data_Cache) = 'integer' AND CPU_L1_Data_Cache BETWEEN -2147483648 AND 2147483647)),
    CPU_L1_Trace_Cache INTEGER
        CONSTRAINT CPU_L1_Trace_Cache_long CHECK (CPU_L1_Trace_Cache IS NULL OR (typeof(CPU_L1_Trace_Cache) = 'integer' AND CPU_L1_Trace_Cache BETWEEN -2147483648 AND 2147483647)),
    CPU_L2_Cache INTEGER
        CONSTRAINT CPU_L2_Cache_long CHECK (CPU_L2_Cache IS NULL OR (typeof(CPU_L2_Cache) = 'integer' AND CPU_L2_Cache BETWEEN -2147483648 AND 2147483647)),
    CPU_L3_Cache INTEGER
        CONSTRAINT CPU_L3_Cache_long CHECK (CPU_L3_Cache IS NULL OR (typeof(CPU_L3_Cache) = 'integer' AND CPU_L3_Cache BETWEEN -2147483648 AND 2147483647)),
    CPU_L1_Instruction_Cache_unit TEXT COLLATE NOCASE
        CONSTRAINT CPU_L1_Instruction_Cache_unit_text CHECK (length(CPU_L1_Instruction_Cache_unit) <= 255),
    CPU_L1_Data_Cache_unit TEXT COLLATE NOCASE
        CONSTRAINT CPU_L1_Data_Cache_unit_text CHECK (length(CPU_L1_Data_Cache_unit) <= 255),
    CPU_L1_Trace_Cache_unit TEXT COLLATE NOCASE
        CONSTRAINT CPU_L1_Trace_Cache_unit_text CHECK (length(CPU_L1_Trace_Cache_unit) <= 255),
    CPU_L2_Cache_unit TEXT COLLATE NOCASE
        CONSTRAINT CPU_L2_Cache_unit_text CHECK (length(CPU_L2_Cache_unit) <= 255),
    CPU_L3_Cache_unit TEXT COLLATE NOCASE
        CONSTRAINT CPU_L3_Cache_unit_text CHECK (length(CPU_L3_Cache_unit) <= 255),
    CPU_FPU SMALLINT
        CONSTRAINT CPU_FPU_smallint CHECK (CPU_FPU IS NULL OR (typeof(CPU_FPU) = 'integer' AND CPU_FPU BETWEEN -32768 AND 32767)),
    CPU_VME SMALLINT
        CONSTRAINT CPU_VME_smallint CHECK (CPU_VME IS NULL OR (typeof(CPU_VME) = 'integer' AND CPU_VME BETWEEN -32768 AND 32767)),
    CPU_DE SMALLINT
        CONSTRAINT CPU_DE_smallint CHECK (CPU_DE IS NULL OR (typeof(CPU_DE) = 'integer' AND CPU_DE BETWEEN -32768 AND 32767)),
    CPU_PSE SMALLINT
        CONSTRAINT CPU_PSE_smallint CHECK (CPU_PSE IS NULL OR (typeof(CPU_PSE) = 'integer' AND CPU_PSE BETWEEN -32768 AND 32767)),
    CPU_TSC SMALLINT
        CONSTRAINT CPU_TSC_smallint CHECK (CPU_TSC IS NULL OR (typeof(CPU_TSC) = 'integer' AND CPU_TSC BETWEEN -32768 AND 32767)),
    CPU_MSR SMALLINT
        CONSTRAINT CPU_MSR_smallint CHECK (CPU_MSR IS NULL OR (typeof(CPU_MSR) = 'integer' AND CPU_MSR BETWEEN -32768 AND 32767)),
    CPU_PAE SMALLINT
        CONSTRAINT CPU_PAE_smallint CHECK (CPU_PAE IS NULL OR (typeof(CPU_PAE) = 'integer' AND CPU_PAE BETWEEN -32768 AND 32767)),
    CPU_MCE SMALLINT
        CONSTRAINT CPU_MCE_smallint CHECK (CPU_MCE IS NULL OR (typeof(CPU_MCE) = 'integer' AND CPU_MCE BETWEEN -32768 AND 32767)),
    CPU_CX8 SMALLINT
        CONSTRAINT CPU_CX8_smallint CHECK (CPU_CX8 IS NULL OR (typeof(CPU_CX8) = 'integer' AND CPU_CX8 BETWEEN -32768 AND 32767)),
    CPU_APIC SMALLINT
        CONSTRAINT CPU_APIC_smallint CHECK (CPU_APIC IS NULL OR (typeof(CPU_APIC) = 'integer' AND CPU_APIC BETWEEN -32768 AND 32767)),
    CPU_SEP SMALLINT
        CONSTRAINT CPU_SEP_smallint CHECK (CPU_SEP IS NULL OR (typeof(CPU_SEP) = 'integer' AND CPU_SEP BETWEEN -32768 AND 32767)),
    CPU_MTRR SMALLINT
        CONSTRAINT CPU_MTRR_smallint CHECK (CPU_MTRR IS NULL OR (typeof(CPU_MTRR) = 'integer' AND CPU_MTRR BETWEEN -32768 AND 32767)),
    CPU_PGE SMALLINT
        CONSTRAINT CPU_PGE_smallint CHECK (CPU_PGE IS NULL OR (typeof(CPU_PGE) = 'integer' AND CPU_PGE BETWEEN -32768 AND 32767)),
    CPU_MCA SMALLINT
        CONSTRAINT CPU_MCA_smallint CHECK (CPU_MCA IS NULL OR (typeof(CPU_MCA) = 'integer' AND CPU_MCA BETWEEN -32768 AND 32767)),
    CPU_CMOV SMALLINT
        CONSTRAINT CPU_CMOV_smallint CHECK (CPU_CMOV IS NULL OR (typeof(CPU_CMOV) = 'integer' AND CPU_CMOV BETWEEN -32768 AND 32767)),
    CPU_PAT SMALLINT
        CONSTRAINT CPU_PAT_smallint CHECK (CPU_PAT IS NULL OR (typeof(CPU_PAT) = 'integer' AND CPU_PAT BETWEEN -32768 AND 32767)),
    CPU_PSE36 SMALLINT
        CONSTRAINT CPU_PSE36_smallint CHECK (CPU_PSE36 IS NULL OR (typeof(CPU_PSE36) = 'integer' AND CPU_PSE36 BETWEEN -32768 AND 32767)),
    CPU_PSN SMALLINT
        CONSTRAINT CPU_PSN_smallint CHECK (CPU_PSN IS NULL OR (typeof(CPU_PSN) = 'integer' AND CPU_PSN BETWEEN -32768 AND 32767)),
    CPU_MMX SMALLINT
        CONSTRAINT CPU_MMX_smallint CHECK (CPU_MMX IS NULL OR (typeof(CPU_MMX) = 'integer' AND CPU_MMX BETWEEN -32768 AND 32767)),
    CPU_FXSR SMALLINT
        CONSTRAINT CPU_FXSR_smallint CHECK (CPU_FXSR IS NULL OR (typeof(CPU_FXSR) = 'integer' AND CPU_FXSR BETWEEN -32768 AND 32767)),
    CPU_SSE SMALLINT
        CONSTRAINT CPU_SSE_smallint CHECK (CPU_SSE IS NULL OR (typeof(CPU_SSE) = 'integer' AND CPU_SSE BETWEEN -32768 AND 32767)),
    CPU_SSE2 SMALLINT
        CONSTRAINT CPU_SSE2_smallint CHECK (CPU_SSE2 IS NULL OR (typeof(CPU_SSE2) = 'integer' AND CPU_SSE2 BETWEEN -32768 AND 32767)),
    CPU_HTT SMALLINT
        CONSTRAINT CPU_HTT_smallint CHECK (CPU_HTT IS NULL OR (typeof(CPU_HTT) = 'integer' AND CPU_HTT BETWEEN -32768 AND 32767)),
    CPU_TM SMALLINT
        CONSTRAINT CPU_TM_smallint CHECK (CPU_TM IS NULL OR (typeof(CPU_TM) = 'integer' AND CPU_TM BETWEEN -32768 AND 32767)),
    CPU_3DNow SMALLINT
        CONSTRAINT CPU_3DNow_smallint CHECK (CPU_3DNow IS NULL OR (typeof(CPU_3DNow) = 'integer' AND CPU_3DNow BETWEEN -32768 AND 32767)),
    CPU_3DNowEx SMALLINT
        CONSTRAINT CPU_3DNowEx_smallint CHECK (CPU_3DNowEx IS NULL OR (typeof(CPU_3DNowEx) = 'integer' AND CPU_3DNowEx BETWEEN -32768 AND 32767)),
    CPU_SSE3 SMALLINT
        CONSTRAINT CPU_SSE3_smallint CHECK (CPU_SSE3 IS NULL OR (typeof(CPU_SSE3) = 'integer' AND CPU_SSE3 BETWEEN -32768 AND 32767)),
    CPU_MONITOR SMALLINT
        CONSTRAINT CPU_MONITOR_smallint CHECK (CPU_MONITOR IS NULL OR (typeof(CPU_MONITOR) = 'integer' AND CPU_MONITOR BETWEEN -32768 AND 32767)),
    CPU_DSCPL SMALLINT
        CONSTRAINT CPU_DSCPL_smallint CHECK (CPU_DSCPL IS NULL OR (typeof(CPU_DSCPL) = 'integer' AND CPU_DSCPL BETWEEN -32768 AND 32767)),
    CPU_EST SMALLINT
        CONSTRAINT CPU_EST_smallint CHECK (CPU_EST IS NULL OR (typeof(CPU_EST) = 'integer' AND CPU_EST BETWEEN -32768 AND 32767)),
    CPU_TM2 SMALLINT
        CONSTRAINT CPU_TM2_smallint CHECK (CPU_TM2 IS NULL OR (typeof(CPU_TM2) = 'integer' AND CPU_TM2 BETWEEN -32768 AND 32767)),
    CPU_CID SMALLINT
        CONSTRAINT CPU_CID_smallint CHECK (CPU_CID IS NULL OR (typeof(CPU_CID) = 'integer' AND CPU_CID BETWEEN -32768 AND 32767)),
    UserName TEXT COLLATE NOCASE
        CONSTRAINT UserName_text CHECK (length(UserName) <= 255),
    UserPassword TEXT COLLATE NOCASE
        CONSTRAINT UserPassword_text CHECK (length(UserPassword) <= 255),
    HostsName TEXT COLLATE NOCASE
        CONSTRAINT HostsName_text CHECK (length(HostsName) <= 255),
    DomeinName TEXT COLLATE NOCASE
        CONSTRAINT DomeinName_text CHECK (length(DomeinName) <= 255),
    PC_Explanation TEXT COLLATE NOCASE
        CONSTRAINT PC_Explanation_text CHECK (length(PC_Explanation) <= 255),
    ProviderName TEXT COLLATE NOCASE
        CONSTRAINT ProviderName_text CHECK (length(ProviderName) <= 255),
    AdapterName TEXT COLLATE NOCASE
        CONSTRAINT AdapterName_text CHECK (length(AdapterName) <= 255),
    SubnetMask TEXT COLLATE NOCASE
        CONSTRAINT SubnetMask_text CHECK (length(SubnetMask) <= 255),
    Gateway TEXT COLLATE NOCASE
        CONSTRAINT Gateway_text CHECK (length(Gateway) <= 255),
    DHCPServer TEXT COLLATE NOCASE
        CONSTRAINT DHCPServer_text CHECK (length(DHCPServer) <= 255),
    PrimaryWINS TEXT COLLATE NOCASE
        CONSTRAINT PrimaryWINS_text CHECK (length(PrimaryWINS) <= 255),
    SecondaryWINS TEXT COLLATE NOCASE
        CONSTRAINT SecondaryWINS_text CHECK (length(SecondaryWINS) <= 255),
    PrimaryDNS TEXT COLLATE NOCASE
        CONSTRAINT PrimaryDNS_text CHECK (length(PrimaryDNS) <= 255),
    SecondaryDNS TEXT COLLATE NOCASE
        CONSTRAINT SecondaryDNS_text CHECK (length(SecondaryDNS) <= 255),
    HUB_Name TEXT COLLATE NOCASE
        CONSTRAINT HUB_Name_text CHECK (length(HUB_Name) <= 255),
    Internet_Connection SMALLINT
        CONSTRAINT Internet_Connection_smallint CHECK (Internet_Connection IS NULL OR (typeof(Internet_Connection) = 'integer' AND Internet_Connection BETWEEN -32768 AND 32767)),
    Modem_Connection SMALLINT
        CONSTRAINT Modem_Connection_smallint CHECK (Modem_Connection IS NULL OR (typeof(Modem_Connection) = 'integer' AND Modem_Connection BETWEEN -32768 AND 32767)),
    LAN_Connection SMALLINT
        CONSTRAINT LAN_Connection_smallint CHECK (LAN_Connection IS NULL OR (typeof(LAN_Connection) = 'integer' AND LAN_Connection BETWEEN -32768 AND 32767)),
    PROXY_Connection SMALLINT
        CONSTRAINT PROXY_Connection_smallint CHECK (PROXY_Connection IS NULL OR (typeof(PROXY_Connection) = 'integer' AND PROXY_Connection BETWEEN -32768 AND 32767)),
    OfflineMode SMALLINT
        CONSTRAINT OfflineMode_smallint CHECK (OfflineMode IS NULL OR (typeof(OfflineMode) = 'integer' AND OfflineMode BETWEEN -32768 AND 32767)),
    RASInstalled SMALLINT
        CONSTRAINT RASInstalled_smallint CHECK (RASInstalled IS NULL OR (typeof(RASInstalled) = 'integer' AND RASInstalled BETWEEN -32768 AND 32767))
);

-- Rows of one computer; Key is its MainKey, not a row key.
CREATE TABLE tbl_ApplicationsList (
    "Key" SMALLINT
        CONSTRAINT Key_smallint CHECK ("Key" IS NULL OR (typeof("Key") = 'integer' AND "Key" BETWEEN -32768 AND 32767)),
    "Update" TEXT COLLATE NOCASE
        CONSTRAINT Update_text CHECK (length("Update") <= 255),
    Application_Name TEXT COLLATE NOCASE
        CONSTRAINT Application_Name_text CHECK (length(Application_Name) <= 255),
    Application_Version TEXT COLLATE NOCASE
        CONSTRAINT Application_Version_text CHECK (length(Application_Version) <= 255),
    Application_Path TEXT COLLATE NOCASE
        CONSTRAINT Application_Path_text CHECK (length(Application_Path) <= 255)
);

CREATE TABLE tbl_Device_Management (
    "Key" SMALLINT
        CONSTRAINT Key_smallint CHECK ("Key" IS NULL OR (typeof("Key") = 'integer' AND "Key" BETWEEN -32768 AND 32767)),
    "Update" TEXT COLLATE NOCASE
        CONSTRAINT Update_text CHECK (length("Update") <= 255),
    Device_Category TEXT COLLATE NOCASE
        CONSTRAINT Device_Category_text CHECK (length(Device_Category) <= 255),
    Device_Name TEXT COLLATE NOCASE
        CONSTRAINT Device_Name_text CHECK (length(Device_Name) <= 255),
    Device_Provider TEXT COLLATE NOCASE
        CONSTRAINT Device_Provider_text CHECK (length(Device_Provider) <= 255),
    Device_Version TEXT COLLATE NOCASE
        CONSTRAINT Device_Version_text CHECK (length(Device_Version) <= 255)
);

CREATE TABLE tbl_Printer_Management (
    "Key" SMALLINT
        CONSTRAINT Key_smallint CHECK ("Key" IS NULL OR (typeof("Key") = 'integer' AND "Key" BETWEEN -32768 AND 32767)),
    "Update" TEXT COLLATE NOCASE
        CONSTRAINT Update_text CHECK (length("Update") <= 255),
    Printer_Name TEXT COLLATE NOCASE
        CONSTRAINT Printer_Name_text CHECK (length(Printer_Name) <= 255),
    PrinterPorts_Name TEXT COLLATE NOCASE
        CONSTRAINT PrinterPorts_Name_text CHECK (length(PrinterPorts_Name) <= 255),
    Printer_Driver_Version TEXT COLLATE NOCASE
        CONSTRAINT Printer_Driver_Version_text CHECK (length(Printer_Driver_Version) <= 255)
);

CREATE TABLE tbl_Environmental (
    "Key" SMALLINT
        CONSTRAINT Key_smallint CHECK ("Key" IS NULL OR (typeof("Key") = 'integer' AND "Key" BETWEEN -32768 AND 32767)),
    "Update" TEXT COLLATE NOCASE
        CONSTRAINT Update_text CHECK (length("Update") <= 255),
    Environmental_Name TEXT COLLATE NOCASE
        CONSTRAINT Environmental_Name_text CHECK (length(Environmental_Name) <= 255),
    Environmental_Path TEXT COLLATE NOCASE
        CONSTRAINT Environmental_Path_text CHECK (length(Environmental_Path) <= 255),
    Coments TEXT COLLATE NOCASE
        CONSTRAINT Coments_text CHECK (length(Coments) <= 255)
);

-- Master tables: code, name, comment, availability flag, in this order (the editors go by position).
-- Available_flug is text: "0" in use, "1" removed.
CREATE TABLE tbl_Section (
    Section_Code SMALLINT NOT NULL PRIMARY KEY
        CONSTRAINT Section_Code_smallint CHECK (Section_Code IS NULL OR (typeof(Section_Code) = 'integer' AND Section_Code BETWEEN -32768 AND 32767)),
    Section_Name TEXT COLLATE NOCASE
        CONSTRAINT Section_Name_text CHECK (length(Section_Name) <= 255),
    Section_Comment TEXT COLLATE NOCASE
        CONSTRAINT Section_Comment_text CHECK (length(Section_Comment) <= 255),
    Available_flug TEXT COLLATE NOCASE
        CONSTRAINT Available_flug_text CHECK (length(Available_flug) <= 255)
);

CREATE TABLE tbl_Division (
    Division_Code SMALLINT NOT NULL PRIMARY KEY
        CONSTRAINT Division_Code_smallint CHECK (Division_Code IS NULL OR (typeof(Division_Code) = 'integer' AND Division_Code BETWEEN -32768 AND 32767)),
    Division_Name TEXT COLLATE NOCASE
        CONSTRAINT Division_Name_text CHECK (length(Division_Name) <= 255),
    Division_Comment TEXT COLLATE NOCASE
        CONSTRAINT Division_Comment_text CHECK (length(Division_Comment) <= 255),
    Available_flug TEXT COLLATE NOCASE
        CONSTRAINT Available_flug_text CHECK (length(Available_flug) <= 255)
);

CREATE TABLE tbl_Location (
    Location_Code SMALLINT NOT NULL PRIMARY KEY
        CONSTRAINT Location_Code_smallint CHECK (Location_Code IS NULL OR (typeof(Location_Code) = 'integer' AND Location_Code BETWEEN -32768 AND 32767)),
    Location_Name TEXT COLLATE NOCASE
        CONSTRAINT Location_Name_text CHECK (length(Location_Name) <= 255),
    Location_Comment TEXT COLLATE NOCASE
        CONSTRAINT Location_Comment_text CHECK (length(Location_Comment) <= 255),
    Available_flug TEXT COLLATE NOCASE
        CONSTRAINT Available_flug_text CHECK (length(Available_flug) <= 255)
);

CREATE TABLE tbl_Manufacturer (
    Manufacturer_Code SMALLINT NOT NULL PRIMARY KEY
        CONSTRAINT Manufacturer_Code_smallint CHECK (Manufacturer_Code IS NULL OR (typeof(Manufacturer_Code) = 'integer' AND Manufacturer_Code BETWEEN -32768 AND 32767)),
    Manufacturer_Name TEXT COLLATE NOCASE
        CONSTRAINT Manufacturer_Name_text CHECK (length(Manufacturer_Name) <= 255),
    Manufacturer_Comment TEXT COLLATE NOCASE
        CONSTRAINT Manufacturer_Comment_text CHECK (length(Manufacturer_Comment) <= 255),
    Available_flug TEXT COLLATE NOCASE
        CONSTRAINT Available_flug_text CHECK (length(Available_flug) <= 255)
);

CREATE TABLE tbl_Model (
    Model_Code SMALLINT NOT NULL PRIMARY KEY
        CONSTRAINT Model_Code_smallint CHECK (Model_Code IS NULL OR (typeof(Model_Code) = 'integer' AND Model_Code BETWEEN -32768 AND 32767)),
    Model_Name TEXT COLLATE NOCASE
        CONSTRAINT Model_Name_text CHECK (length(Model_Name) <= 255),
    Model_Comment TEXT COLLATE NOCASE
        CONSTRAINT Model_Comment_text CHECK (length(Model_Comment) <= 255),
    Available_flug TEXT COLLATE NOCASE
        CONSTRAINT Available_flug_text CHECK (length(Available_flug) <= 255)
);

CREATE TABLE tbl_User (
    User_Code SMALLINT NOT NULL PRIMARY KEY
        CONSTRAINT User_Code_smallint CHECK (User_Code IS NULL OR (typeof(User_Code) = 'integer' AND User_Code BETWEEN -32768 AND 32767)),
    User_Name TEXT COLLATE NOCASE
        CONSTRAINT User_Name_text CHECK (length(User_Name) <= 255),
    User_Comment TEXT COLLATE NOCASE
        CONSTRAINT User_Comment_text CHECK (length(User_Comment) <= 255),
    Available_flug TEXT COLLATE NOCASE
        CONSTRAINT Available_flug_text CHECK (length(Available_flug) <= 255),
    kana TEXT COLLATE NOCASE
        CONSTRAINT kana_text CHECK (length(kana) <= 255),
    Employee_SerialNumber TEXT COLLATE NOCASE
        CONSTRAINT Employee_SerialNumber_text CHECK (length(Employee_SerialNumber) <= 255),
    Acount_Name TEXT COLLATE NOCASE
        CONSTRAINT Acount_Name_text CHECK (length(Acount_Name) <= 255),
    logon_Password TEXT COLLATE NOCASE
        CONSTRAINT logon_Password_text CHECK (length(logon_Password) <= 255),
    Section_Code SMALLINT
        CONSTRAINT Section_Code_smallint CHECK (Section_Code IS NULL OR (typeof(Section_Code) = 'integer' AND Section_Code BETWEEN -32768 AND 32767)),
    Division_Code SMALLINT
        CONSTRAINT Division_Code_smallint CHECK (Division_Code IS NULL OR (typeof(Division_Code) = 'integer' AND Division_Code BETWEEN -32768 AND 32767))
);

-- Licences bought and licences assigned; Key is each row's own key.
CREATE TABLE tbl_License_Key (
    "Key" SMALLINT NOT NULL PRIMARY KEY
        CONSTRAINT Key_smallint CHECK ("Key" IS NULL OR (typeof("Key") = 'integer' AND "Key" BETWEEN -32768 AND 32767)),
    Application_Name TEXT COLLATE NOCASE
        CONSTRAINT Application_Name_text CHECK (length(Application_Name) <= 255),
    Unit_Num INTEGER
        CONSTRAINT Unit_Num_long CHECK (Unit_Num IS NULL OR (typeof(Unit_Num) = 'integer' AND Unit_Num BETWEEN -2147483648 AND 2147483647))
);

CREATE TABLE tbl_License_Dat (
    "Key" SMALLINT NOT NULL PRIMARY KEY
        CONSTRAINT Key_smallint CHECK ("Key" IS NULL OR (typeof("Key") = 'integer' AND "Key" BETWEEN -32768 AND 32767)),
    Application_Code SMALLINT
        CONSTRAINT Application_Code_smallint CHECK (Application_Code IS NULL OR (typeof(Application_Code) = 'integer' AND Application_Code BETWEEN -32768 AND 32767)),
    Computer_Code SMALLINT
        CONSTRAINT Computer_Code_smallint CHECK (Computer_Code IS NULL OR (typeof(Computer_Code) = 'integer' AND Computer_Code BETWEEN -32768 AND 32767)),
    ProductID TEXT COLLATE NOCASE
        CONSTRAINT ProductID_text CHECK (length(ProductID) <= 255),
    Licence_No TEXT COLLATE NOCASE
        CONSTRAINT Licence_No_text CHECK (length(Licence_No) <= 255),
    Install_Key TEXT COLLATE NOCASE
        CONSTRAINT Install_Key_text CHECK (length(Install_Key) <= 255),
    Payment_Type TEXT COLLATE NOCASE
        CONSTRAINT Payment_Type_text CHECK (length(Payment_Type) <= 255),
    Asset_Type TEXT COLLATE NOCASE
        CONSTRAINT Asset_Type_text CHECK (length(Asset_Type) <= 255),
    Purchase_Price INTEGER
        CONSTRAINT Purchase_Price_long CHECK (Purchase_Price IS NULL OR (typeof(Purchase_Price) = 'integer' AND Purchase_Price BETWEEN -2147483648 AND 2147483647)),
    Comment TEXT COLLATE NOCASE
        CONSTRAINT Comment_text CHECK (length(Comment) <= 255),
    "Update" DATETIME
);

CREATE TABLE tbl_Mail_Management (
    "Key" SMALLINT NOT NULL PRIMARY KEY
        CONSTRAINT Key_smallint CHECK ("Key" IS NULL OR (typeof("Key") = 'integer' AND "Key" BETWEEN -32768 AND 32767)),
    User_Code SMALLINT
        CONSTRAINT User_Code_smallint CHECK (User_Code IS NULL OR (typeof(User_Code) = 'integer' AND User_Code BETWEEN -32768 AND 32767)),
    Conputer_Code SMALLINT
        CONSTRAINT Conputer_Code_smallint CHECK (Conputer_Code IS NULL OR (typeof(Conputer_Code) = 'integer' AND Conputer_Code BETWEEN -32768 AND 32767)),
    beat_loginID TEXT COLLATE NOCASE
        CONSTRAINT beat_loginID_text CHECK (length(beat_loginID) <= 255),
    beat_loginPassward TEXT COLLATE NOCASE
        CONSTRAINT beat_loginPassward_text CHECK (length(beat_loginPassward) <= 255),
    Windows_UserName TEXT COLLATE NOCASE
        CONSTRAINT Windows_UserName_text CHECK (length(Windows_UserName) <= 255),
    Mail_Address TEXT COLLATE NOCASE
        CONSTRAINT Mail_Address_text CHECK (length(Mail_Address) <= 255),
    SMTP_IPAddress TEXT COLLATE NOCASE
        CONSTRAINT SMTP_IPAddress_text CHECK (length(SMTP_IPAddress) <= 255),
    POP3_IPAddress TEXT COLLATE NOCASE
        CONSTRAINT POP3_IPAddress_text CHECK (length(POP3_IPAddress) <= 255),
    Mailbox_AccountName TEXT COLLATE NOCASE
        CONSTRAINT Mailbox_AccountName_text CHECK (length(Mailbox_AccountName) <= 255),
    Mailbox_Password TEXT COLLATE NOCASE
        CONSTRAINT Mailbox_Password_text CHECK (length(Mailbox_Password) <= 255)
);

-- Network devices, kept apart from the computers and the masters: names are stored as text.
CREATE TABLE tbl_NetworkUnit (
    "Key" SMALLINT NOT NULL PRIMARY KEY
        CONSTRAINT Key_smallint CHECK ("Key" IS NULL OR (typeof("Key") = 'integer' AND "Key" BETWEEN -32768 AND 32767)),
    Deleted_Flug SMALLINT DEFAULT 0
        CONSTRAINT Deleted_Flug_smallint CHECK (Deleted_Flug IS NULL OR (typeof(Deleted_Flug) = 'integer' AND Deleted_Flug BETWEEN -32768 AND 32767)),
    Location_Name TEXT COLLATE NOCASE
        CONSTRAINT Location_Name_text CHECK (length(Location_Name) <= 255),
    User_Name TEXT COLLATE NOCASE
        CONSTRAINT User_Name_text CHECK (length(User_Name) <= 255),
    Computer_Name TEXT COLLATE NOCASE
        CONSTRAINT Computer_Name_text CHECK (length(Computer_Name) <= 255),
    WorkGroup TEXT COLLATE NOCASE
        CONSTRAINT WorkGroup_text CHECK (length(WorkGroup) <= 255),
    IPAddress TEXT COLLATE NOCASE
        CONSTRAINT IPAddress_text CHECK (length(IPAddress) <= 255),
    IPAddress_16num TEXT COLLATE NOCASE
        CONSTRAINT IPAddress_16num_text CHECK (length(IPAddress_16num) <= 255),
    MacAddress TEXT COLLATE NOCASE
        CONSTRAINT MacAddress_text CHECK (length(MacAddress) <= 255),
    Manufacturer_Name TEXT COLLATE NOCASE
        CONSTRAINT Manufacturer_Name_text CHECK (length(Manufacturer_Name) <= 255),
    Model_Name TEXT COLLATE NOCASE
        CONSTRAINT Model_Name_text CHECK (length(Model_Name) <= 255),
    Type_Number TEXT COLLATE NOCASE
        CONSTRAINT Type_Number_text CHECK (length(Type_Number) <= 255),
    Sereals_Number TEXT COLLATE NOCASE
        CONSTRAINT Sereals_Number_text CHECK (length(Sereals_Number) <= 255),
    ID TEXT COLLATE NOCASE
        CONSTRAINT ID_text CHECK (length(ID) <= 255),
    PassWord TEXT COLLATE NOCASE
        CONSTRAINT PassWord_text CHECK (length(PassWord) <= 255)
);

-- The merged address list of computers and devices, emptied and rebuilt on request.
CREATE TABLE tbl_NetworkList (
    "Key" SMALLINT NOT NULL PRIMARY KEY
        CONSTRAINT Key_smallint CHECK ("Key" IS NULL OR (typeof("Key") = 'integer' AND "Key" BETWEEN -32768 AND 32767)),
    Location_Name TEXT COLLATE NOCASE
        CONSTRAINT Location_Name_text CHECK (length(Location_Name) <= 255),
    User_Name TEXT COLLATE NOCASE
        CONSTRAINT User_Name_text CHECK (length(User_Name) <= 255),
    Computer_Name TEXT COLLATE NOCASE
        CONSTRAINT Computer_Name_text CHECK (length(Computer_Name) <= 255),
    WorkGroup TEXT COLLATE NOCASE
        CONSTRAINT WorkGroup_text CHECK (length(WorkGroup) <= 255),
    IPAddress TEXT COLLATE NOCASE
        CONSTRAINT IPAddress_text CHECK (length(IPAddress) <= 255),
    IPAddress_16num TEXT COLLATE NOCASE
        CONSTRAINT IPAddress_16num_text CHECK (length(IPAddress_16num) <= 255),
    Manufacturer_Name TEXT COLLATE NOCASE
        CONSTRAINT Manufacturer_Name_text CHECK (length(Manufacturer_Name) <= 255),
    Model_Name TEXT COLLATE NOCASE
        CONSTRAINT Model_Name_text CHECK (length(Model_Name) <= 255),
    Type_Number TEXT COLLATE NOCASE
        CONSTRAINT Type_Number_text CHECK (length(Type_Number) <= 255),
    Sereals_Number TEXT COLLATE NOCASE
        CONSTRAINT Sereals_Number_text CHECK (length(Sereals_Number) <= 255),
    MacAddress TEXT COLLATE NOCASE
        CONSTRAINT MacAddress_text CHECK (length(MacAddress) <= 255)
);

-- Staging of the last accepted inventory file, in the file's column order; no row key.
CREATE TABLE tbl_ReadCsv (
    "Key" TEXT COLLATE NOCASE
        CONSTRAINT Key_text CHECK (length("Key") <= 255),
    "Group" TEXT COLLATE NOCASE
        CONSTRAINT Group_text CHECK (length("Group") <= 255),
    Item TEXT COLLATE NOCASE
        CONSTRAINT Item_text CHECK (length(Item) <= 255),
    SubItem TEXT COLLATE NOCASE
        CONSTRAINT SubItem_text CHECK (length(SubItem) <= 255),
    Contents TEXT COLLATE NOCASE
        CONSTRAINT Contents_text CHECK (length(Contents) <= 255),
    Unit TEXT COLLATE NOCASE
        CONSTRAINT Unit_text CHECK (length(Unit) <= 255),
    Renewalday LONGTEXT COLLATE NOCASE
);

-- Lookups of the staging table go by SubItem, and a computer's rows by its key. Rows with the same
-- SubItem come back in the order they were staged, so "the first record" stays the file's first.
CREATE INDEX tbl_ReadCsv_SubItem ON tbl_ReadCsv (SubItem);
CREATE INDEX tbl_ApplicationsList_Key ON tbl_ApplicationsList ("Key");
CREATE INDEX tbl_Device_Management_Key ON tbl_Device_Management ("Key");
CREATE INDEX tbl_Printer_Management_Key ON tbl_Printer_Management ("Key");
CREATE INDEX tbl_Environmental_Key ON tbl_Environmental ("Key");

-- Dates. Jet took a date in its usual forms (2005/2/3, 2005-02-03,
-- 2005/02/03 10:11:12, 2005/02/03 10:11) and refused a day that does not exist (2005/02/31).
-- These triggers do both: a value that is no real date aborts the statement with
-- '<column>_date', and any other is stored in the one form 'yyyy/mm/dd[ hh:nn:ss]'. An insert
-- passes its date through the update trigger.

CREATE TRIGGER tbl_Computer_List_Leasing_StartDate_insert AFTER INSERT ON tbl_Computer_List
WHEN NEW.Leasing_StartDate IS NOT NULL
BEGIN
    UPDATE tbl_Computer_List SET Leasing_StartDate = Leasing_StartDate WHERE rowid = NEW.rowid;
END;
CREATE TRIGGER tbl_Computer_List_Leasing_StartDate_update AFTER UPDATE OF Leasing_StartDate ON tbl_Computer_List
WHEN NEW.Leasing_StartDate IS NOT NULL AND NEW.Leasing_StartDate IS NOT (SELECT CASE WHEN y GLOB '[0-9][0-9][0-9][0-9]'
                     AND length(m) BETWEEN 1 AND 2 AND m NOT GLOB '*[^0-9]*'
                     AND length(dd) BETWEEN 1 AND 2 AND dd NOT GLOB '*[^0-9]*'
                     AND date(printf('%s-%02d-%02d', y, m, dd), '+0 days') = printf('%s-%02d-%02d', y, m, dd)
                     AND (tm = '' OR (length(hh) BETWEEN 1 AND 2 AND hh NOT GLOB '*[^0-9]*' AND CAST(hh AS INTEGER) < 24
                                      AND mi GLOB '[0-5][0-9]' AND (ss = '' OR ss GLOB '[0-5][0-9]')))
                THEN printf('%s/%02d/%02d', y, m, dd)
                     || CASE WHEN tm = '' THEN '' ELSE printf(' %02d:%s:%s', hh, mi, CASE WHEN ss = '' THEN '00' ELSE ss END) END
                END
         FROM (SELECT y, m, dd, tm, hh,
                      CASE WHEN instr(ms, ':') THEN substr(ms, 1, instr(ms, ':') - 1) ELSE ms END AS mi,
                      CASE WHEN instr(ms, ':') THEN substr(ms, instr(ms, ':') + 1) ELSE '' END AS ss
               FROM (SELECT y, substr(md, 1, instr(md, '/') - 1) AS m, substr(md, instr(md, '/') + 1) AS dd, tm,
                            substr(tm, 1, instr(tm, ':') - 1) AS hh, substr(tm, instr(tm, ':') + 1) AS ms
                     FROM (SELECT substr(dt, 1, instr(dt, '/') - 1) AS y, substr(dt, instr(dt, '/') + 1) AS md, tm
                           FROM (SELECT CASE WHEN instr(v, ' ') THEN substr(v, 1, instr(v, ' ') - 1) ELSE v END AS dt,
                                        CASE WHEN instr(v, ' ') THEN trim(substr(v, instr(v, ' ') + 1)) ELSE '' END AS tm
                                 FROM (SELECT replace(trim(NEW.Leasing_StartDate), '-', '/') AS v))))))
BEGIN
    SELECT RAISE(ABORT, 'Leasing_StartDate_date') WHERE (SELECT CASE WHEN y GLOB '[0-9][0-9][0-9][0-9]'
                         AND length(m) BETWEEN 1 AND 2 AND m NOT GLOB '*[^0-9]*'
                         AND length(dd) BETWEEN 1 AND 2 AND dd NOT GLOB '*[^0-9]*'
                         AND date(printf('%s-%02d-%02d', y, m, dd), '+0 days') = printf('%s-%02d-%02d', y, m, dd)
                         AND (tm = '' OR (length(hh) BETWEEN 1 AND 2 AND hh NOT GLOB '*[^0-9]*' AND CAST(hh AS INTEGER) < 24
                                          AND mi GLOB '[0-5][0-9]' AND (ss = '' OR ss GLOB '[0-5][0-9]')))
                    THEN printf('%s/%02d/%02d', y, m, dd)
                         || CASE WHEN tm = '' THEN '' ELSE printf(' %02d:%s:%s', hh, mi, CASE WHEN ss = '' THEN '00' ELSE ss END) END
                    END
             FROM (SELECT y, m, dd, tm, hh,
                          CASE WHEN instr(ms, ':') THEN substr(ms, 1, instr(ms, ':') - 1) ELSE ms END AS mi,
                          CASE WHEN instr(ms, ':') THEN substr(ms, instr(ms, ':') + 1) ELSE '' END AS ss
                   FROM (SELECT y, substr(md, 1, instr(md, '/') - 1) AS m, substr(md, instr(md, '/') + 1) AS dd, tm,
                                substr(tm, 1, instr(tm, ':') - 1) AS hh, substr(tm, instr(tm, ':') + 1) AS ms
                         FROM (SELECT substr(dt, 1, instr(dt, '/') - 1) AS y, substr(dt, instr(dt, '/') + 1) AS md, tm
                               FROM (SELECT CASE WHEN instr(v, ' ') THEN substr(v, 1, instr(v, ' ') - 1) ELSE v END AS dt,
                                            CASE WHEN instr(v, ' ') THEN trim(substr(v, instr(v, ' ') + 1)) ELSE '' END AS tm
                                     FROM (SELECT replace(trim(NEW.Leasing_StartDate), '-', '/') AS v)))))) IS NULL;
    UPDATE tbl_Computer_List SET Leasing_StartDate = (SELECT CASE WHEN y GLOB '[0-9][0-9][0-9][0-9]'
                         AND length(m) BETWEEN 1 AND 2 AND m NOT GLOB '*[^0-9]*'
                         AND length(dd) BETWEEN 1 AND 2 AND dd NOT GLOB '*[^0-9]*'
                         AND date(printf('%s-%02d-%02d', y, m, dd), '+0 days') = printf('%s-%02d-%02d', y, m, dd)
                         AND (tm = '' OR (length(hh) BETWEEN 1 AND 2 AND hh NOT GLOB '*[^0-9]*' AND CAST(hh AS INTEGER) < 24
                                          AND mi GLOB '[0-5][0-9]' AND (ss = '' OR ss GLOB '[0-5][0-9]')))
                    THEN printf('%s/%02d/%02d', y, m, dd)
                         || CASE WHEN tm = '' THEN '' ELSE printf(' %02d:%s:%s', hh, mi, CASE WHEN ss = '' THEN '00' ELSE ss END) END
                    END
             FROM (SELECT y, m, dd, tm, hh,
                          CASE WHEN instr(ms, ':') THEN substr(ms, 1, instr(ms, ':') - 1) ELSE ms END AS mi,
                          CASE WHEN instr(ms, ':') THEN substr(ms, instr(ms, ':') + 1) ELSE '' END AS ss
                   FROM (SELECT y, substr(md, 1, instr(md, '/') - 1) AS m, substr(md, instr(md, '/') + 1) AS dd, tm,
                                substr(tm, 1, instr(tm, ':') - 1) AS hh, substr(tm, instr(tm, ':') + 1) AS ms
                         FROM (SELECT substr(dt, 1, instr(dt, '/') - 1) AS y, substr(dt, instr(dt, '/') + 1) AS md, tm
                               FROM (SELECT CASE WHEN instr(v, ' ') THEN substr(v, 1, instr(v, ' ') - 1) ELSE v END AS dt,
                                            CASE WHEN instr(v, ' ') THEN trim(substr(v, instr(v, ' ') + 1)) ELSE '' END AS tm
                                     FROM (SELECT replace(trim(NEW.Leasing_StartDate), '-', '/') AS v))))))
    WHERE rowid = NEW.rowid;
END;

CREATE TRIGGER tbl_Computer_List_Leasing_EndDate_insert AFTER INSERT ON tbl_Computer_List
WHEN NEW.Leasing_EndDate IS NOT NULL
BEGIN
    UPDATE tbl_Computer_List SET Leasing_EndDate = Leasing_EndDate WHERE rowid = NEW.rowid;
END;
CREATE TRIGGER tbl_Computer_List_Leasing_EndDate_update AFTER UPDATE OF Leasing_EndDate ON tbl_Computer_List
WHEN NEW.Leasing_EndDate IS NOT NULL AND NEW.Leasing_EndDate IS NOT (SELECT CASE WHEN y GLOB '[0-9][0-9][0-9][0-9]'
                     AND length(m) BETWEEN 1 AND 2 AND m NOT GLOB '*[^0-9]*'
                     AND length(dd) BETWEEN 1 AND 2 AND dd NOT GLOB '*[^0-9]*'
                     AND date(printf('%s-%02d-%02d', y, m, dd), '+0 days') = printf('%s-%02d-%02d', y, m, dd)
                     AND (tm = '' OR (length(hh) BETWEEN 1 AND 2 AND hh NOT GLOB '*[^0-9]*' AND CAST(hh AS INTEGER) < 24
                                      AND mi GLOB '[0-5][0-9]' AND (ss = '' OR ss GLOB '[0-5][0-9]')))
                THEN printf('%s/%02d/%02d', y, m, dd)
                     || CASE WHEN tm = '' THEN '' ELSE printf(' %02d:%s:%s', hh, mi, CASE WHEN ss = '' THEN '00' ELSE ss END) END
                END
         FROM (SELECT y, m, dd, tm, hh,
                      CASE WHEN instr(ms, ':') THEN substr(ms, 1, instr(ms, ':') - 1) ELSE ms END AS mi,
                      CASE WHEN instr(ms, ':') THEN substr(ms, instr(ms, ':') + 1) ELSE '' END AS ss
               FROM (SELECT y, substr(md, 1, instr(md, '/') - 1) AS m, substr(md, instr(md, '/') + 1) AS dd, tm,
                            substr(tm, 1, instr(tm, ':') - 1) AS hh, substr(tm, instr(tm, ':') + 1) AS ms
                     FROM (SELECT substr(dt, 1, instr(dt, '/') - 1) AS y, substr(dt, instr(dt, '/') + 1) AS md, tm
                           FROM (SELECT CASE WHEN instr(v, ' ') THEN substr(v, 1, instr(v, ' ') - 1) ELSE v END AS dt,
                                        CASE WHEN instr(v, ' ') THEN trim(substr(v, instr(v, ' ') + 1)) ELSE '' END AS tm
                                 FROM (SELECT replace(trim(NEW.Leasing_EndDate), '-', '/') AS v))))))
BEGIN
    SELECT RAISE(ABORT, 'Leasing_EndDate_date') WHERE (SELECT CASE WHEN y GLOB '[0-9][0-9][0-9][0-9]'
                         AND length(m) BETWEEN 1 AND 2 AND m NOT GLOB '*[^0-9]*'
                         AND length(dd) BETWEEN 1 AND 2 AND dd NOT GLOB '*[^0-9]*'
                         AND date(printf('%s-%02d-%02d', y, m, dd), '+0 days') = printf('%s-%02d-%02d', y, m, dd)
                         AND (tm = '' OR (length(hh) BETWEEN 1 AND 2 AND hh NOT GLOB '*[^0-9]*' AND CAST(hh AS INTEGER) < 24
                                          AND mi GLOB '[0-5][0-9]' AND (ss = '' OR ss GLOB '[0-5][0-9]')))
                    THEN printf('%s/%02d/%02d', y, m, dd)
                         || CASE WHEN tm = '' THEN '' ELSE printf(' %02d:%s:%s', hh, mi, CASE WHEN ss = '' THEN '00' ELSE ss END) END
                    END
             FROM (SELECT y, m, dd, tm, hh,
                          CASE WHEN instr(ms, ':') THEN substr(ms, 1, instr(ms, ':') - 1) ELSE ms END AS mi,
                          CASE WHEN instr(ms, ':') THEN substr(ms, instr(ms, ':') + 1) ELSE '' END AS ss
                   FROM (SELECT y, substr(md, 1, instr(md, '/') - 1) AS m, substr(md, instr(md, '/') + 1) AS dd, tm,
                                substr(tm, 1, instr(tm, ':') - 1) AS hh, substr(tm, instr(tm, ':') + 1) AS ms
                         FROM (SELECT substr(dt, 1, instr(dt, '/') - 1) AS y, substr(dt, instr(dt, '/') + 1) AS md, tm
                               FROM (SELECT CASE WHEN instr(v, ' ') THEN substr(v, 1, instr(v, ' ') - 1) ELSE v END AS dt,
                                            CASE WHEN instr(v, ' ') THEN trim(substr(v, instr(v, ' ') + 1)) ELSE '' END AS tm
                                     FROM (SELECT replace(trim(NEW.Leasing_EndDate), '-', '/') AS v)))))) IS NULL;
    UPDATE tbl_Computer_List SET Leasing_EndDate = (SELECT CASE WHEN y GLOB '[0-9][0-9][0-9][0-9]'
                         AND length(m) BETWEEN 1 AND 2 AND m NOT GLOB '*[^0-9]*'
                         AND length(dd) BETWEEN 1 AND 2 AND dd NOT GLOB '*[^0-9]*'
                         AND date(printf('%s-%02d-%02d', y, m, dd), '+0 days') = printf('%s-%02d-%02d', y, m, dd)
                         AND (tm = '' OR (length(hh) BETWEEN 1 AND 2 AND hh NOT GLOB '*[^0-9]*' AND CAST(hh AS INTEGER) < 24
                                          AND mi GLOB '[0-5][0-9]' AND (ss = '' OR ss GLOB '[0-5][0-9]')))
                    THEN printf('%s/%02d/%02d', y, m, dd)
                         || CASE WHEN tm = '' THEN '' ELSE printf(' %02d:%s:%s', hh, mi, CASE WHEN ss = '' THEN '00' ELSE ss END) END
                    END
             FROM (SELECT y, m, dd, tm, hh,
                          CASE WHEN instr(ms, ':') THEN substr(ms, 1, instr(ms, ':') - 1) ELSE ms END AS mi,
                          CASE WHEN instr(ms, ':') THEN substr(ms, instr(ms, ':') + 1) ELSE '' END AS ss
                   FROM (SELECT y, substr(md, 1, instr(md, '/') - 1) AS m, substr(md, instr(md, '/') + 1) AS dd, tm,
                                substr(tm, 1, instr(tm, ':') - 1) AS hh, substr(tm, instr(tm, ':') + 1) AS ms
                         FROM (SELECT substr(dt, 1, instr(dt, '/') - 1) AS y, substr(dt, instr(dt, '/') + 1) AS md, tm
                               FROM (SELECT CASE WHEN instr(v, ' ') THEN substr(v, 1, instr(v, ' ') - 1) ELSE v END AS dt,
                                            CASE WHEN instr(v, ' ') THEN trim(substr(v, instr(v, ' ') + 1)) ELSE '' END AS tm
                                     FROM (SELECT replace(trim(NEW.Leasing_EndDate), '-', '/') AS v))))))
    WHERE rowid = NEW.rowid;
END;

CREATE TRIGGER tbl_Computer_List_Remove_Date_insert AFTER INSERT ON tbl_Computer_List
WHEN NEW.Remove_Date IS NOT NULL
BEGIN
    UPDATE tbl_Computer_List SET Remove_Date = Remove_Date WHERE rowid = NEW.rowid;
END;
CREATE TRIGGER tbl_Computer_List_Remove_Date_update AFTER UPDATE OF Remove_Date ON tbl_Computer_List
WHEN NEW.Remove_Date IS NOT NULL AND NEW.Remove_Date IS NOT (SELECT CASE WHEN y GLOB '[0-9][0-9][0-9][0-9]'
                     AND length(m) BETWEEN 1 AND 2 AND m NOT GLOB '*[^0-9]*'
                     AND length(dd) BETWEEN 1 AND 2 AND dd NOT GLOB '*[^0-9]*'
                     AND date(printf('%s-%02d-%02d', y, m, dd), '+0 days') = printf('%s-%02d-%02d', y, m, dd)
                     AND (tm = '' OR (length(hh) BETWEEN 1 AND 2 AND hh NOT GLOB '*[^0-9]*' AND CAST(hh AS INTEGER) < 24
                                      AND mi GLOB '[0-5][0-9]' AND (ss = '' OR ss GLOB '[0-5][0-9]')))
                THEN printf('%s/%02d/%02d', y, m, dd)
                     || CASE WHEN tm = '' THEN '' ELSE printf(' %02d:%s:%s', hh, mi, CASE WHEN ss = '' THEN '00' ELSE ss END) END
                END
         FROM (SELECT y, m, dd, tm, hh,
                      CASE WHEN instr(ms, ':') THEN substr(ms, 1, instr(ms, ':') - 1) ELSE ms END AS mi,
                      CASE WHEN instr(ms, ':') THEN substr(ms, instr(ms, ':') + 1) ELSE '' END AS ss
               FROM (SELECT y, substr(md, 1, instr(md, '/') - 1) AS m, substr(md, instr(md, '/') + 1) AS dd, tm,
                            substr(tm, 1, instr(tm, ':') - 1) AS hh, substr(tm, instr(tm, ':') + 1) AS ms
                     FROM (SELECT substr(dt, 1, instr(dt, '/') - 1) AS y, substr(dt, instr(dt, '/') + 1) AS md, tm
                           FROM (SELECT CASE WHEN instr(v, ' ') THEN substr(v, 1, instr(v, ' ') - 1) ELSE v END AS dt,
                                        CASE WHEN instr(v, ' ') THEN trim(substr(v, instr(v, ' ') + 1)) ELSE '' END AS tm
                                 FROM (SELECT replace(trim(NEW.Remove_Date), '-', '/') AS v))))))
BEGIN
    SELECT RAISE(ABORT, 'Remove_Date_date') WHERE (SELECT CASE WHEN y GLOB '[0-9][0-9][0-9][0-9]'
                         AND length(m) BETWEEN 1 AND 2 AND m NOT GLOB '*[^0-9]*'
                         AND length(dd) BETWEEN 1 AND 2 AND dd NOT GLOB '*[^0-9]*'
                         AND date(printf('%s-%02d-%02d', y, m, dd), '+0 days') = printf('%s-%02d-%02d', y, m, dd)
                         AND (tm = '' OR (length(hh) BETWEEN 1 AND 2 AND hh NOT GLOB '*[^0-9]*' AND CAST(hh AS INTEGER) < 24
                                          AND mi GLOB '[0-5][0-9]' AND (ss = '' OR ss GLOB '[0-5][0-9]')))
                    THEN printf('%s/%02d/%02d', y, m, dd)
                         || CASE WHEN tm = '' THEN '' ELSE printf(' %02d:%s:%s', hh, mi, CASE WHEN ss = '' THEN '00' ELSE ss END) END
                    END
             FROM (SELECT y, m, dd, tm, hh,
                          CASE WHEN instr(ms, ':') THEN substr(ms, 1, instr(ms, ':') - 1) ELSE ms END AS mi,
                          CASE WHEN instr(ms, ':') THEN substr(ms, instr(ms, ':') + 1) ELSE '' END AS ss
                   FROM (SELECT y, substr(md, 1, instr(md, '/') - 1) AS m, substr(md, instr(md, '/') + 1) AS dd, tm,
                                substr(tm, 1, instr(tm, ':') - 1) AS hh, substr(tm, instr(tm, ':') + 1) AS ms
                         FROM (SELECT substr(dt, 1, instr(dt, '/') - 1) AS y, substr(dt, instr(dt, '/') + 1) AS md, tm
                               FROM (SELECT CASE WHEN instr(v, ' ') THEN substr(v, 1, instr(v, ' ') - 1) ELSE v END AS dt,
                                            CASE WHEN instr(v, ' ') THEN trim(substr(v, instr(v, ' ') + 1)) ELSE '' END AS tm
                                     FROM (SELECT replace(trim(NEW.Remove_Date), '-', '/') AS v)))))) IS NULL;
    UPDATE tbl_Computer_List SET Remove_Date = (SELECT CASE WHEN y GLOB '[0-9][0-9][0-9][0-9]'
                         AND length(m) BETWEEN 1 AND 2 AND m NOT GLOB '*[^0-9]*'
                         AND length(dd) BETWEEN 1 AND 2 AND dd NOT GLOB '*[^0-9]*'
                         AND date(printf('%s-%02d-%02d', y, m, dd), '+0 days') = printf('%s-%02d-%02d', y, m, dd)
                         AND (tm = '' OR (length(hh) BETWEEN 1 AND 2 AND hh NOT GLOB '*[^0-9]*' AND CAST(hh AS INTEGER) < 24
                                          AND mi GLOB '[0-5][0-9]' AND (ss = '' OR ss GLOB '[0-5][0-9]')))
                    THEN printf('%s/%02d/%02d', y, m, dd)
                         || CASE WHEN tm = '' THEN '' ELSE printf(' %02d:%s:%s', hh, mi, CASE WHEN ss = '' THEN '00' ELSE ss END) END
                    END
             FROM (SELECT y, m, dd, tm, hh,
                          CASE WHEN instr(ms, ':') THEN substr(ms, 1, instr(ms, ':') - 1) ELSE ms END AS mi,
                          CASE WHEN instr(ms, ':') THEN substr(ms, instr(ms, ':') + 1) ELSE '' END AS ss
                   FROM (SELECT y, substr(md, 1, instr(md, '/') - 1) AS m, substr(md, instr(md, '/') + 1) AS dd, tm,
                                substr(tm, 1, instr(tm, ':') - 1) AS hh, substr(tm, instr(tm, ':') + 1) AS ms
                         FROM (SELECT substr(dt, 1, instr(dt, '/') - 1) AS y, substr(dt, instr(dt, '/') + 1) AS md, tm
                               FROM (SELECT CASE WHEN instr(v, ' ') THEN substr(v, 1, instr(v, ' ') - 1) ELSE v END AS dt,
                                            CASE WHEN instr(v, ' ') THEN trim(substr(v, instr(v, ' ') + 1)) ELSE '' END AS tm
                                     FROM (SELECT replace(trim(NEW.Remove_Date), '-', '/') AS v))))))
    WHERE rowid = NEW.rowid;
END;

CREATE TRIGGER tbl_License_Dat_Update_insert AFTER INSERT ON tbl_License_Dat
WHEN NEW."Update" IS NOT NULL
BEGIN
    UPDATE tbl_License_Dat SET "Update" = "Update" WHERE rowid = NEW.rowid;
END;
CREATE TRIGGER tbl_License_Dat_Update_update AFTER UPDATE OF "Update" ON tbl_License_Dat
WHEN NEW."Update" IS NOT NULL AND NEW."Update" IS NOT (SELECT CASE WHEN y GLOB '[0-9][0-9][0-9][0-9]'
                     AND length(m) BETWEEN 1 AND 2 AND m NOT GLOB '*[^0-9]*'
                     AND length(dd) BETWEEN 1 AND 2 AND dd NOT GLOB '*[^0-9]*'
                     AND date(printf('%s-%02d-%02d', y, m, dd), '+0 days') = printf('%s-%02d-%02d', y, m, dd)
                     AND (tm = '' OR (length(hh) BETWEEN 1 AND 2 AND hh NOT GLOB '*[^0-9]*' AND CAST(hh AS INTEGER) < 24
                                      AND mi GLOB '[0-5][0-9]' AND (ss = '' OR ss GLOB '[0-5][0-9]')))
                THEN printf('%s/%02d/%02d', y, m, dd)
                     || CASE WHEN tm = '' THEN '' ELSE printf(' %02d:%s:%s', hh, mi, CASE WHEN ss = '' THEN '00' ELSE ss END) END
                END
         FROM (SELECT y, m, dd, tm, hh,
                      CASE WHEN instr(ms, ':') THEN substr(ms, 1, instr(ms, ':') - 1) ELSE ms END AS mi,
                      CASE WHEN instr(ms, ':') THEN substr(ms, instr(ms, ':') + 1) ELSE '' END AS ss
               FROM (SELECT y, substr(md, 1, instr(md, '/') - 1) AS m, substr(md, instr(md, '/') + 1) AS dd, tm,
                            substr(tm, 1, instr(tm, ':') - 1) AS hh, substr(tm, instr(tm, ':') + 1) AS ms
                     FROM (SELECT substr(dt, 1, instr(dt, '/') - 1) AS y, substr(dt, instr(dt, '/') + 1) AS md, tm
                           FROM (SELECT CASE WHEN instr(v, ' ') THEN substr(v, 1, instr(v, ' ') - 1) ELSE v END AS dt,
                                        CASE WHEN instr(v, ' ') THEN trim(substr(v, instr(v, ' ') + 1)) ELSE '' END AS tm
                                 FROM (SELECT replace(trim(NEW."Update"), '-', '/') AS v))))))
BEGIN
    SELECT RAISE(ABORT, 'Update_date') WHERE (SELECT CASE WHEN y GLOB '[0-9][0-9][0-9][0-9]'
                         AND length(m) BETWEEN 1 AND 2 AND m NOT GLOB '*[^0-9]*'
                         AND length(dd) BETWEEN 1 AND 2 AND dd NOT GLOB '*[^0-9]*'
                         AND date(printf('%s-%02d-%02d', y, m, dd), '+0 days') = printf('%s-%02d-%02d', y, m, dd)
                         AND (tm = '' OR (length(hh) BETWEEN 1 AND 2 AND hh NOT GLOB '*[^0-9]*' AND CAST(hh AS INTEGER) < 24
                                          AND mi GLOB '[0-5][0-9]' AND (ss = '' OR ss GLOB '[0-5][0-9]')))
                    THEN printf('%s/%02d/%02d', y, m, dd)
                         || CASE WHEN tm = '' THEN '' ELSE printf(' %02d:%s:%s', hh, mi, CASE WHEN ss = '' THEN '00' ELSE ss END) END
                    END
             FROM (SELECT y, m, dd, tm, hh,
                          CASE WHEN instr(ms, ':') THEN substr(ms, 1, instr(ms, ':') - 1) ELSE ms END AS mi,
                          CASE WHEN instr(ms, ':') THEN substr(ms, instr(ms, ':') + 1) ELSE '' END AS ss
                   FROM (SELECT y, substr(md, 1, instr(md, '/') - 1) AS m, substr(md, instr(md, '/') + 1) AS dd, tm,
                                substr(tm, 1, instr(tm, ':') - 1) AS hh, substr(tm, instr(tm, ':') + 1) AS ms
                         FROM (SELECT substr(dt, 1, instr(dt, '/') - 1) AS y, substr(dt, instr(dt, '/') + 1) AS md, tm
                               FROM (SELECT CASE WHEN instr(v, ' ') THEN substr(v, 1, instr(v, ' ') - 1) ELSE v END AS dt,
                                            CASE WHEN instr(v, ' ') THEN trim(substr(v, instr(v, ' ') + 1)) ELSE '' END AS tm
                                     FROM (SELECT replace(trim(NEW."Update"), '-', '/') AS v)))))) IS NULL;
    UPDATE tbl_License_Dat SET "Update" = (SELECT CASE WHEN y GLOB '[0-9][0-9][0-9][0-9]'
                         AND length(m) BETWEEN 1 AND 2 AND m NOT GLOB '*[^0-9]*'
                         AND length(dd) BETWEEN 1 AND 2 AND dd NOT GLOB '*[^0-9]*'
                         AND date(printf('%s-%02d-%02d', y, m, dd), '+0 days') = printf('%s-%02d-%02d', y, m, dd)
                         AND (tm = '' OR (length(hh) BETWEEN 1 AND 2 AND hh NOT GLOB '*[^0-9]*' AND CAST(hh AS INTEGER) < 24
                                          AND mi GLOB '[0-5][0-9]' AND (ss = '' OR ss GLOB '[0-5][0-9]')))
                    THEN printf('%s/%02d/%02d', y, m, dd)
                         || CASE WHEN tm = '' THEN '' ELSE printf(' %02d:%s:%s', hh, mi, CASE WHEN ss = '' THEN '00' ELSE ss END) END
                    END
             FROM (SELECT y, m, dd, tm, hh,
                          CASE WHEN instr(ms, ':') THEN substr(ms, 1, instr(ms, ':') - 1) ELSE ms END AS mi,
                          CASE WHEN instr(ms, ':') THEN substr(ms, instr(ms, ':') + 1) ELSE '' END AS ss
                   FROM (SELECT y, substr(md, 1, instr(md, '/') - 1) AS m, substr(md, instr(md, '/') + 1) AS dd, tm,
                                substr(tm, 1, instr(tm, ':') - 1) AS hh, substr(tm, instr(tm, ':') + 1) AS ms
                         FROM (SELECT substr(dt, 1, instr(dt, '/') - 1) AS y, substr(dt, instr(dt, '/') + 1) AS md, tm
                               FROM (SELECT CASE WHEN instr(v, ' ') THEN substr(v, 1, instr(v, ' ') - 1) ELSE v END AS dt,
                                            CASE WHEN instr(v, ' ') THEN trim(substr(v, instr(v, ' ') + 1)) ELSE '' END AS tm
                                     FROM (SELECT replace(trim(NEW."Update"), '-', '/') AS v))))))
    WHERE rowid = NEW.rowid;
END;

-- The reserved rows of code 0: computers are born with code 0 in each master column, and the
-- lists join the masters with inner joins, so each master table needs its unset entry.
INSERT INTO tbl_Section VALUES (0, '', '', '0');
INSERT INTO tbl_Division VALUES (0, '', '', '0');
INSERT INTO tbl_Location VALUES (0, '', '', '0');
INSERT INTO tbl_Manufacturer VALUES (0, '', '', '0');
INSERT INTO tbl_Model VALUES (0, '', '', '0');
INSERT INTO tbl_User VALUES (0, '', '', '0', '', '', '', '', 0, 0);

-- Computer 0, the unset computer: a new mail account points at it until it is assigned, and the
-- mail grid joins the computer tables with inner joins. Its Deleted_Flug is left Null so that no
-- list of installed or removed computers ever counts it: a fresh ledger lists no row at all, and
-- every computer list (licences, network, review) stays free of an empty entry.
INSERT INTO tbl_Computer_List (MainKey, Location_Code, User_Code, Manufacturer_Code, Model_Code, Deleted_Flug)
VALUES (0, 0, 0, 0, 0, NULL);
INSERT INTO tbl_Pclist (MainKey) VALUES (0);
