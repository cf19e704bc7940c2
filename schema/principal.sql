-- Tables of the main and personal databases, columns in canonical order. This file is the one place where they are declared: it makes
-- new databases, and what the program knows about canonical tables, columns and keys is read from it.
--
-- TEXT(n) is a text of at most n characters, TEXT_MEMO one without limit; TEXT_DATE and TEXT_DATETIME hold dates as
-- 'yyyy-mm-dd', with ' hh:mm:ss' behind it when the time is not midnight; YESNO is 0 or -1. A unique index named clave_ is the
-- table's natural key. Where a table has no such index, repeated rows are part of its life (merged stations, twins).

CREATE TABLE Claves (
    Usuario TEXT(25) COLLATE NOCASE,
    Clave TEXT(50) COLLATE NOCASE,
    NIVEL TEXT(50) COLLATE NOCASE
);

CREATE TABLE Historial (
    Equipo TEXT(50) COLLATE NOCASE,
    Fecha TEXT_DATETIME,
    Operacion TEXT(100) COLLATE NOCASE
);

CREATE TABLE T_Veterinarios (
    Id_Veterinario DOUBLE,
    DNI TEXT(9) COLLATE NOCASE,
    NombreVet TEXT(50) COLLATE NOCASE,
    ApellidosVet TEXT(50) COLLATE NOCASE,
    Concejo TEXT(30) COLLATE NOCASE,
    FechaAlta TEXT_DATE,
    Usuario TEXT(25) COLLATE NOCASE,
    Id_Direccion DOUBLE
);
CREATE INDEX indice1_T_Veterinarios ON T_Veterinarios (Id_Veterinario);

CREATE TABLE T_Ganaderos (
    Id_Ganadero DOUBLE,
    DNI TEXT(50) COLLATE NOCASE,
    Nombre TEXT(50) COLLATE NOCASE,
    Apellidos TEXT(50) COLLATE NOCASE,
    Apodo TEXT(50) COLLATE NOCASE,
    Concejo TEXT(50) COLLATE NOCASE,
    NSocio TEXT(50) COLLATE NOCASE,
    FechaAlta TEXT_DATE,
    FechaBaja TEXT_DATE,
    MotivoBaja TEXT(255) COLLATE NOCASE,
    Id_Veterinario DOUBLE,
    TorosComun TEXT(50) COLLATE NOCASE,
    Id_Direccion DOUBLE,
    ObsIPR TEXT_MEMO COLLATE NOCASE,
    ObsAI TEXT_MEMO COLLATE NOCASE,
    ObsAbonoSuperficie TEXT_MEMO COLLATE NOCASE,
    ObsPC TEXT_MEMO COLLATE NOCASE,
    ObsVacunaciones TEXT_MEMO COLLATE NOCASE,
    ObsSP TEXT_MEMO COLLATE NOCASE
);
CREATE UNIQUE INDEX clave_T_Ganaderos ON T_Ganaderos (Id_Ganadero);
CREATE INDEX indice1_T_Ganaderos ON T_Ganaderos (Id_Veterinario);

CREATE TABLE T_Direcciones (
    Id_Direccion DOUBLE,
    Id_GV DOUBLE,
    Direccion TEXT(50) COLLATE NOCASE,
    Complemento TEXT(50) COLLATE NOCASE,
    Codigo_Postal TEXT(5) COLLATE NOCASE,
    Localidad TEXT(30) COLLATE NOCASE,
    Provincia TEXT(30) COLLATE NOCASE,
    TelefonoP TEXT(20) COLLATE NOCASE,
    TelefonoM TEXT(20) COLLATE NOCASE,
    Email TEXT(25) COLLATE NOCASE,
    FAX TEXT(20) COLLATE NOCASE
);
CREATE UNIQUE INDEX clave_T_Direcciones ON T_Direcciones (Id_Direccion, Id_GV);
CREATE INDEX indice1_T_Direcciones ON T_Direcciones (Id_GV);

CREATE TABLE T_IPR (
    Id_Ganadero DOUBLE,
    AñoNatural INTEGER,
    IPRPrimNov TEXT(50) COLLATE NOCASE,
    IPRInvNov TEXT(50) COLLATE NOCASE,
    PartosAgrup TEXT(50) COLLATE NOCASE,
    PrimVac TEXT(50) COLLATE NOCASE,
    PrimNov TEXT(50) COLLATE NOCASE,
    InvVac TEXT(50) COLLATE NOCASE,
    InvNov TEXT(50) COLLATE NOCASE,
    Blanco TEXT_MEMO COLLATE NOCASE
);
CREATE INDEX indice1_T_IPR ON T_IPR (Id_Ganadero, AñoNatural);

CREATE TABLE T_AlimentacionInvernal (
    Id_Ganadero DOUBLE,
    AñoNatural INTEGER,
    InicioPI TEXT_DATE,
    FinPI TEXT_DATE,
    AlimVacas TEXT(50) COLLATE NOCASE,
    AlimNov TEXT(50) COLLATE NOCASE,
    AlimPI TEXT(50) COLLATE NOCASE
);
CREATE UNIQUE INDEX clave_T_AlimentacionInvernal ON T_AlimentacionInvernal (Id_Ganadero, AñoNatural);

CREATE TABLE T_AbonadoSuperficie (
    Id_Ganadero DOUBLE,
    AñoNatural INTEGER,
    HasNoCom DOUBLE,
    HasPropias DOUBLE,
    HasAbonadas DOUBLE,
    AbonadoN DOUBLE,
    AbonadoP DOUBLE,
    AbonadoK DOUBLE,
    Abonado TEXT(50) COLLATE NOCASE
);
CREATE UNIQUE INDEX clave_T_AbonadoSuperficie ON T_AbonadoSuperficie (Id_Ganadero, AñoNatural);

CREATE TABLE T_PastosComunales (
    Id_Ganadero DOUBLE,
    AñoNatural INTEGER,
    PastosCom TEXT(50) COLLATE NOCASE,
    AprovPC TEXT(50) COLLATE NOCASE,
    DisponPC TEXT(50) COLLATE NOCASE,
    InicioPC TEXT_DATE,
    FinPC TEXT_DATE,
    novvacaspc DOUBLE,
    SuplemPC TEXT(50) COLLATE NOCASE,
    AlimPC TEXT(50) COLLATE NOCASE,
    Venereas TEXT(50) COLLATE NOCASE
);
CREATE UNIQUE INDEX clave_T_PastosComunales ON T_PastosComunales (Id_Ganadero, AñoNatural);

CREATE TABLE T_SistemaProduccion (
    Id_Ganadero DOUBLE,
    AñoNatural INTEGER,
    TipoSP TEXT(50) COLLATE NOCASE
);
CREATE UNIQUE INDEX clave_T_SistemaProduccion ON T_SistemaProduccion (Id_Ganadero, AñoNatural);

CREATE TABLE T_Vacunaciones (
    Id_Ganadero DOUBLE,
    AñoNatural INTEGER,
    ProcRespiratorios TEXT(50) COLLATE NOCASE,
    ProcDigestivos TEXT(50) COLLATE NOCASE,
    ProcReproductivos TEXT(50) COLLATE NOCASE,
    Paramunidad TEXT(50) COLLATE NOCASE
);
CREATE UNIQUE INDEX clave_T_Vacunaciones ON T_Vacunaciones (Id_Ganadero, AñoNatural);

CREATE TABLE T_FechasVacu (
    Id_Ganadero DOUBLE,
    Ln INTEGER,
    IBR TEXT_DATE,
    BVD TEXT_DATE,
    MAMITIS TEXT_DATE,
    NEOSPORA TEXT_DATE
);
CREATE INDEX indice1_T_FechasVacu ON T_FechasVacu (Id_Ganadero, Ln);

CREATE TABLE T_Vacas (
    Id_Vaca DOUBLE,
    Nombre TEXT(50) COLLATE NOCASE,
    FechaBaja TEXT_DATE,
    FechaDesecho TEXT_DATE,
    Raza TEXT(50) COLLATE NOCASE,
    RazaCruce TEXT(50) COLLATE NOCASE,
    NombreC TEXT(100) COLLATE NOCASE,
    Crotal TEXT(50) COLLATE NOCASE,
    CrotalANT TEXT(50) COLLATE NOCASE,
    RegGenealogico TEXT(50) COLLATE NOCASE,
    RegSaneam TEXT(50) COLLATE NOCASE,
    Id_Ganadero DOUBLE,
    FechaNac TEXT_DATE,
    Cularidad TEXT(50) COLLATE NOCASE,
    NombrePadre TEXT(100) COLLATE NOCASE,
    RegGenPadre TEXT(50) COLLATE NOCASE,
    RegSanPadre TEXT(50) COLLATE NOCASE,
    NombreMadre TEXT(100) COLLATE NOCASE,
    RegGenMadre TEXT(50) COLLATE NOCASE,
    RegSanMAdre TEXT(50) COLLATE NOCASE,
    Calificacion DOUBLE,
    MG_PN DOUBLE,
    MG_PD DOUBLE,
    MG_GD DOUBLE,
    MG_DP DOUBLE,
    FechaCompra TEXT_DATE,
    Patologia TEXT_MEMO COLLATE NOCASE,
    Desecho TEXT(50) COLLATE NOCASE,
    ObsDesecho TEXT_MEMO COLLATE NOCASE,
    cDesecho TEXT_MEMO COLLATE NOCASE,
    CPT DOUBLE,
    ObsCC TEXT_MEMO COLLATE NOCASE,
    ObsIBRBVD TEXT_MEMO COLLATE NOCASE,
    ObsNEOSPIROSIS TEXT_MEMO COLLATE NOCASE,
    ObsControlRebaño TEXT_MEMO COLLATE NOCASE,
    Chekeo TEXT(50) COLLATE NOCASE
);
CREATE UNIQUE INDEX clave_T_Vacas ON T_Vacas (Id_Vaca);
CREATE INDEX indice1_T_Vacas ON T_Vacas (Id_Ganadero);

CREATE TABLE T_Tetos (
    Id_Teto DOUBLE,
    DescTeto TEXT(50) COLLATE NOCASE
);
CREATE UNIQUE INDEX clave_T_Tetos ON T_Tetos (Id_Teto);

CREATE TABLE T_Mamitis (
    Id_Vaca DOUBLE,
    Id_Teto DOUBLE,
    Fecha TEXT_DATE,
    DescMamitis TEXT(255) COLLATE NOCASE,
    marcado YESNO NOT NULL DEFAULT 0
);
CREATE UNIQUE INDEX clave_T_Mamitis ON T_Mamitis (Id_Vaca, Id_Teto);

CREATE TABLE T_MAMIVACU (
    Id_Ganadero DOUBLE,
    Id_Vaca DOUBLE,
    AñoNat INTEGER,
    VacMamitis TEXT(50) COLLATE NOCASE,
    FechaVacu TEXT_DATE
);
CREATE INDEX indice1_T_MAMIVACU ON T_MAMIVACU (Id_Vaca, AñoNat);

CREATE TABLE T_CCVacas (
    Id_Ganadero DOUBLE,
    Id_Vaca DOUBLE,
    AñoRef INTEGER,
    NumParto INTEGER,
    CCParto DOUBLE,
    CC90dPostP DOUBLE,
    MobReservas TEXT(50) COLLATE NOCASE,
    CC90dPrep DOUBLE,
    CCmar DOUBLE,
    CCnov DOUBLE
);
CREATE INDEX indice1_T_CCVacas ON T_CCVacas (Id_Vaca, AñoRef, NumParto);

CREATE TABLE T_CCNATVACAS (
    Id_Ganadero DOUBLE,
    Id_Vaca DOUBLE,
    AñoNat INTEGER,
    CCmar DOUBLE,
    CCnov DOUBLE
);
CREATE INDEX indice1_T_CCNATVACAS ON T_CCNATVACAS (Id_Vaca, AñoNat);

CREATE TABLE T_IBRBVD (
    Id_Ganadero DOUBLE,
    Id_Vaca DOUBLE,
    AñoNat INTEGER,
    VIBR TEXT(50) COLLATE NOCASE,
    IBRsp TEXT(50) COLLATE NOCASE,
    IBRbp TEXT(50) COLLATE NOCASE,
    VBVD TEXT(50) COLLATE NOCASE,
    BVDsp TEXT(50) COLLATE NOCASE,
    BVDbp TEXT(50) COLLATE NOCASE
);
CREATE INDEX indice1_T_IBRBVD ON T_IBRBVD (Id_Vaca, AñoNat);

CREATE TABLE T_R_IBRBVD (
    Id_Ganadero DOUBLE,
    Id_Vaca DOUBLE,
    AñoRef INTEGER,
    NumParto INTEGER,
    IBR TEXT(50) COLLATE NOCASE,
    BVD TEXT(50) COLLATE NOCASE
);
CREATE INDEX indice1_T_R_IBRBVD ON T_R_IBRBVD (Id_Vaca, AñoRef, NumParto);

CREATE TABLE T_NEOSPIROSIS (
    Id_Ganadero DOUBLE,
    Id_Vaca DOUBLE,
    AñoNat INTEGER,
    VNEOSP TEXT(50) COLLATE NOCASE,
    NeospSp TEXT(50) COLLATE NOCASE,
    NeospBp TEXT(50) COLLATE NOCASE
);
CREATE INDEX indice1_T_NEOSPIROSIS ON T_NEOSPIROSIS (Id_Vaca, AñoNat);

CREATE TABLE T_R_NEOSPIROSIS (
    Id_Ganadero DOUBLE,
    Id_Vaca DOUBLE,
    AñoRef INTEGER,
    NumParto INTEGER,
    Neospirosis TEXT(50) COLLATE NOCASE
);
CREATE INDEX indice1_T_R_NEOSPIROSIS ON T_R_NEOSPIROSIS (Id_Vaca, AñoRef, NumParto);

CREATE TABLE T_Sementales (
    Id_Semental DOUBLE,
    Nombre TEXT(50) COLLATE NOCASE,
    NombreC TEXT(100) COLLATE NOCASE,
    Raza TEXT(50) COLLATE NOCASE,
    RegGenealogico TEXT(50) COLLATE NOCASE,
    RegSaneam TEXT(50) COLLATE NOCASE,
    Id_Ganadero DOUBLE,
    FechaNac TEXT_DATE,
    Cularidad TEXT(50) COLLATE NOCASE,
    NombrePadre TEXT(100) COLLATE NOCASE,
    RegGenPadre TEXT(50) COLLATE NOCASE,
    RegSanPadre TEXT(50) COLLATE NOCASE,
    NombreMadre TEXT(100) COLLATE NOCASE,
    RegGenMadre TEXT(50) COLLATE NOCASE,
    RegSanMAdre TEXT(50) COLLATE NOCASE,
    Calificacion TEXT(50) COLLATE NOCASE,
    MG_PN DOUBLE,
    MG_PD DOUBLE,
    MG_GD DOUBLE,
    MG_DP DOUBLE,
    FechaAlta TEXT_DATE,
    FechaBaja TEXT_DATE,
    CBaja TEXT(50) COLLATE NOCASE,
    OtraCausa TEXT(255) COLLATE NOCASE,
    ObsBaja TEXT_MEMO COLLATE NOCASE,
    ObsPatologia TEXT_MEMO COLLATE NOCASE,
    Crotal TEXT(50) COLLATE NOCASE,
    ToroP TEXT(50) COLLATE NOCASE,
    FiabPN DOUBLE,
    FiabPD DOUBLE,
    FiabGD DOUBLE,
    FiabDP DOUBLE,
    Origen TEXT(50) COLLATE NOCASE
);
CREATE UNIQUE INDEX clave_T_Sementales ON T_Sementales (Id_Semental);
CREATE INDEX indice1_T_Sementales ON T_Sementales (Id_Ganadero);

CREATE TABLE T_PatologiaSem (
    Id_Animal DOUBLE,
    ANatural INTEGER,
    Edad DOUBLE,
    IBRsp TEXT(50) COLLATE NOCASE,
    IBRbp TEXT(50) COLLATE NOCASE,
    BVDsp TEXT(50) COLLATE NOCASE,
    BVDbp TEXT(50) COLLATE NOCASE,
    NeospSp TEXT(50) COLLATE NOCASE,
    NeospBp TEXT(50) COLLATE NOCASE
);
CREATE UNIQUE INDEX clave_T_PatologiaSem ON T_PatologiaSem (Id_Animal, ANatural);

CREATE TABLE T_PatologiaSemR (
    Id_Animal DOUBLE,
    ANatural INTEGER,
    VIBR TEXT(50) COLLATE NOCASE,
    VBVD TEXT(50) COLLATE NOCASE,
    VNEOSPORA TEXT(50) COLLATE NOCASE,
    IBR TEXT(50) COLLATE NOCASE,
    BVD TEXT(50) COLLATE NOCASE,
    NEOSPORA TEXT(50) COLLATE NOCASE
);
CREATE INDEX indice1_T_PatologiaSemR ON T_PatologiaSemR (Id_Animal, ANatural);

CREATE TABLE T_Cubriciones (
    Id_Cubricion DOUBLE,
    Id_Vaca DOUBLE,
    Año_Ref INTEGER,
    N_Parto INTEGER,
    Fecha_Parto TEXT_DATE,
    FinicioP TEXT_DATE,
    Controles TEXT(255) COLLATE NOCASE,
    d40PostParto TEXT_DATE,
    FechaIPR TEXT_DATE,
    Anestro TEXT(50) COLLATE NOCASE,
    AbortoIndNov TEXT(50) COLLATE NOCASE,
    PerdidaCP TEXT(50) COLLATE NOCASE,
    ReactOvarica TEXT(50) COLLATE NOCASE,
    N_TtoInd INTEGER,
    FechaDGRectal TEXT_DATE,
    FechaDG22dias TEXT_DATE,
    Progesterona TEXT(50) COLLATE NOCASE,
    Estado TEXT(50) COLLATE NOCASE,
    FechaRealParto TEXT_DATE,
    FechaEspParto TEXT_DATE,
    Aborto INTEGER,
    Num_Abortos INTEGER,
    BVD INTEGER,
    ControlRepNo INTEGER,
    DesechoPrevi INTEGER,
    EfectoMamado INTEGER,
    Enfermendad INTEGER,
    DescEnfermedad TEXT(200) COLLATE NOCASE,
    EnfReprod INTEGER,
    DescEnfReprod TEXT(200) COLLATE NOCASE,
    IBR INTEGER,
    IndNeg INTEGER,
    Metritis INTEGER,
    MobReservas INTEGER,
    MortEmb INTEGER,
    N_ME INTEGER,
    Repetidora INTEGER,
    TBF INTEGER,
    TA2MIPR INTEGER,
    TA_2MIPR INTEGER,
    DemoraServIPR INTEGER,
    Otra_Causa INTEGER,
    Txt_Otra_Causa TEXT(200) COLLATE NOCASE,
    Neospirosis INTEGER,
    DemoraServ INTEGER,
    DatosCompletos INTEGER,
    CausaPrincipal INTEGER,
    NombreCausaPpal TEXT(50) COLLATE NOCASE,
    DescCausaPpal TEXT(255) COLLATE NOCASE,
    IPR_CP INTEGER,
    IEP INTEGER,
    DemoraPreñez INTEGER,
    IEPc INTEGER,
    TotalControles INTEGER,
    TotalServicios INTEGER,
    TotalInsem INTEGER
);
CREATE INDEX indice1_T_Cubriciones ON T_Cubriciones (Id_Vaca, Año_Ref, N_Parto);
CREATE INDEX indice2_T_Cubriciones ON T_Cubriciones (Id_Cubricion);

CREATE TABLE T_Servicios (
    Id_Vaca DOUBLE,
    Año_Ref INTEGER,
    N_Parto INTEGER,
    N_Servicio INTEGER,
    Fecha_Servicio TEXT_DATE,
    Semental TEXT(100) COLLATE NOCASE,
    Prog TEXT(50) COLLATE NOCASE,
    Tratam TEXT(50) COLLATE NOCASE,
    FechaTratam TEXT_DATE,
    TipoServicio TEXT(50) COLLATE NOCASE,
    N_Inseminacion INTEGER,
    Obs TEXT_MEMO COLLATE NOCASE,
    Id_Semental DOUBLE
);
CREATE INDEX indice1_T_Servicios ON T_Servicios (Id_Vaca, Año_Ref, N_Parto);
CREATE INDEX indice2_T_Servicios ON T_Servicios (Id_Semental);

CREATE TABLE T_Partos (
    Id_Parto DOUBLE,
    Id_Vaca DOUBLE,
    N_Parto INTEGER,
    Año_Ref INTEGER,
    DatosCompletos INTEGER,
    Fecha_Parto TEXT_DATE,
    DifParto TEXT(50) COLLATE NOCASE,
    RetPlacenta TEXT(50) COLLATE NOCASE,
    Gemelar TEXT(50) COLLATE NOCASE,
    Semental TEXT(100) COLLATE NOCASE,
    Id_Semental DOUBLE,
    CuartosPerdidos INTEGER,
    TratSecado TEXT(100) COLLATE NOCASE,
    FechaSecado TEXT_DATE,
    Id_Cebo DOUBLE,
    Sexo TEXT(50) COLLATE NOCASE,
    PesoNac DOUBLE,
    Muere TEXT(50) COLLATE NOCASE,
    FechaMuerte TEXT_DATE,
    CausaMuerte TEXT(50) COLLATE NOCASE,
    OtraCausaMuerte TEXT(255) COLLATE NOCASE,
    ObsTernero TEXT_MEMO COLLATE NOCASE,
    Cria TEXT(50) COLLATE NOCASE,
    Suplem3m TEXT(50) COLLATE NOCASE,
    OrigenTernero TEXT(50) COLLATE NOCASE,
    DESTINOTERNERO TEXT(50) COLLATE NOCASE,
    DifMamar TEXT(50) COLLATE NOCASE,
    CausaDmamar TEXT(50) COLLATE NOCASE,
    FVentaAD TEXT_DATE,
    FechaDestete TEXT_DATE,
    PesoDestete DOUBLE,
    FechaPeso TEXT_DATE,
    Peso DOUBLE,
    Cularidad TEXT(50) COLLATE NOCASE,
    AmamantaOtro TEXT(50) COLLATE NOCASE,
    RegSaneam TEXT(50) COLLATE NOCASE,
    EdadDestete INTEGER,
    GDestete INTEGER
);
CREATE INDEX indice1_T_Partos ON T_Partos (Id_Vaca, Año_Ref, N_Parto);
CREATE INDEX indice2_T_Partos ON T_Partos (Id_Parto);
CREATE INDEX indice3_T_Partos ON T_Partos (Id_Semental);
CREATE INDEX indice4_T_Partos ON T_Partos (Id_Cebo);

CREATE TABLE T_Cebo (
    Id_Cebo DOUBLE,
    Id_Ganadero DOUBLE,
    Origen TEXT(50) COLLATE NOCASE,
    Saneamiento TEXT(50) COLLATE NOCASE,
    Sexo TEXT(50) COLLATE NOCASE,
    FechaNac TEXT_DATE,
    FechaCebo TEXT_DATE,
    TipoCebo TEXT(50) COLLATE NOCASE,
    OtroTipoCebo TEXT(255) COLLATE NOCASE,
    AñoRef INTEGER,
    FechaSacrif TEXT_DATE,
    EdadSacrif DOUBLE,
    TiempoCebo DOUBLE,
    Categoria TEXT(50) COLLATE NOCASE,
    Engrasamiento TEXT(50) COLLATE NOCASE,
    KgCanal DOUBLE,
    PrecioKg DOUBLE,
    Obs TEXT_MEMO COLLATE NOCASE,
    FechaMuerte TEXT_DATE,
    CausaMuerte TEXT(50) COLLATE NOCASE,
    OtraCausaMuerte TEXT(255) COLLATE NOCASE,
    Cambiado YESNO NOT NULL DEFAULT 0,
    Id_Parto DOUBLE,
    Id_Vaca DOUBLE,
    N_Parto INTEGER
);
CREATE UNIQUE INDEX clave_T_Cebo ON T_Cebo (Id_Ganadero, Id_Cebo);
CREATE INDEX indice1_T_Cebo ON T_Cebo (Id_Parto);

CREATE TABLE T_Nucleos (
    Id_Nucleo DOUBLE,
    DescNucleo TEXT(50) COLLATE NOCASE,
    Controlador TEXT(50) COLLATE NOCASE,
    Localidad TEXT(50) COLLATE NOCASE
);

CREATE TABLE X_Selector (
    id INTEGER,
    Apodo TEXT(50) COLLATE NOCASE,
    Id_Semental DOUBLE,
    RegGen TEXT(50) COLLATE NOCASE,
    RegSan TEXT(50) COLLATE NOCASE,
    Semental TEXT(50) COLLATE NOCASE,
    Crotal TEXT(50) COLLATE NOCASE,
    SementalC TEXT(100) COLLATE NOCASE,
    Baja INTEGER
);
CREATE INDEX indice1_X_Selector ON X_Selector (id);

CREATE TABLE X_Temp (
    C1 TEXT(255) COLLATE NOCASE,
    C2 TEXT(255) COLLATE NOCASE,
    C3 TEXT(255) COLLATE NOCASE,
    C4 TEXT(255) COLLATE NOCASE,
    C5 TEXT(255) COLLATE NOCASE,
    C6 TEXT(255) COLLATE NOCASE,
    C7 TEXT(255) COLLATE NOCASE,
    C8 TEXT(255) COLLATE NOCASE,
    C9 TEXT(255) COLLATE NOCASE,
    C10 TEXT(255) COLLATE NOCASE,
    C11 TEXT(255) COLLATE NOCASE,
    C12 TEXT(255) COLLATE NOCASE,
    C13 TEXT(255) COLLATE NOCASE,
    C14 TEXT(255) COLLATE NOCASE,
    C15 TEXT(255) COLLATE NOCASE,
    C16 TEXT(255) COLLATE NOCASE,
    C17 TEXT(255) COLLATE NOCASE,
    F1 TEXT_DATE,
    F2 TEXT_DATE,
    F3 TEXT_DATE,
    F4 TEXT_DATE,
    N1 DOUBLE,
    N2 DOUBLE,
    N3 DOUBLE,
    N4 DOUBLE,
    N10 DOUBLE,
    M1 TEXT_MEMO COLLATE NOCASE
);

CREATE TABLE X_Temp1 (
    Id_Ganadero DOUBLE,
    C1 TEXT(255) COLLATE NOCASE,
    C2 TEXT(255) COLLATE NOCASE,
    T1 TEXT(100) COLLATE NOCASE,
    NCC DOUBLE,
    NCD DOUBLE,
    N1 DOUBLE,
    N2 DOUBLE
);

CREATE TABLE X_Temp2 (
    Id_Ganadero DOUBLE,
    Mes TEXT(50) COLLATE NOCASE,
    N1 DOUBLE,
    N2 DOUBLE,
    C1 TEXT(255) COLLATE NOCASE
);

CREATE TABLE X_TempGraph (
    Id_Ganadero DOUBLE,
    Periodo TEXT(50) COLLATE NOCASE,
    N1 DOUBLE,
    N2 DOUBLE
);

CREATE TABLE X_Tmp3 (
    Id_Ganadero DOUBLE,
    N1 DOUBLE,
    N2 DOUBLE,
    N3 DOUBLE
);

CREATE TABLE X_Tmp4 (
    Id_Ganadero DOUBLE,
    NTN DOUBLE,
    NTV DOUBLE,
    EdadN DOUBLE,
    EdadV DOUBLE,
    PesoN DOUBLE,
    PesoV DOUBLE,
    GDN DOUBLE,
    GDV DOUBLE,
    NacidosIns DOUBLE,
    Normales DOUBLE,
    Aculonados DOUBLE,
    Culones DOUBLE,
    TotalCC DOUBLE,
    PN DOUBLE,
    PA DOUBLE,
    PC DOUBLE,
    CEBOSMP DOUBLE,
    CEBOSHP DOUBLE,
    CEBOSMC DOUBLE,
    P_CEBOSHP DOUBLE,
    P_CEBOSMP DOUBLE,
    CEBOSTOTAL DOUBLE
);

CREATE TABLE X_Tmp5 (
    Id_Ganadero DOUBLE,
    N DOUBLE,
    N1 DOUBLE,
    N2 DOUBLE
);

CREATE TABLE X_Tmp6 (
    Id_Ganadero DOUBLE,
    Texto TEXT(100) COLLATE NOCASE,
    N TEXT(50) COLLATE NOCASE,
    N1 DOUBLE,
    N2 TEXT(50) COLLATE NOCASE,
    N3 DOUBLE,
    N5 DOUBLE,
    N6 DOUBLE
);

CREATE TABLE X_Tmp7 (
    Id_Ganadero DOUBLE,
    Texto TEXT(100) COLLATE NOCASE,
    N DOUBLE,
    N1 DOUBLE
);

CREATE TABLE X_Tmp8 (
    Id_Ganadero DOUBLE,
    Texto TEXT(100) COLLATE NOCASE,
    N TEXT(50) COLLATE NOCASE
);

CREATE TABLE X_Tmp9 (
    Id_Ganadero DOUBLE
);

CREATE TABLE X_Tmp10 (
    Id_Ganadero DOUBLE
);
