-- Tables of the catalogue of insemination bulls, columns in canonical order. This file is the one place where they are declared: it makes
-- new databases, and what the program knows about canonical tables, columns and keys is read from it.
--
-- TEXT(n) is a text of at most n characters, TEXT_MEMO one without limit; TEXT_DATE and TEXT_DATETIME hold dates as
-- 'yyyy-mm-dd', with ' hh:mm:ss' behind it when the time is not midnight; YESNO is 0 or -1. A unique index named clave_ is the
-- table's natural key. Where a table has no such index, repeated rows are part of its life (merged stations, twins).

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
