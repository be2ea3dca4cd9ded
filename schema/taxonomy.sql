-- The taxonomic dictionary: names, synonymy, codes, and the vocabularies above them.

-- q1 to q4 are the qualifiers before and behind the genus, before and behind the subgenus.
CREATE TABLE GENUS (
    gen_id          INTEGER PRIMARY KEY,
    cat_mnem        VARCHAR(5),         -- CATEGORY.cat_mnem
    q1              VARCHAR(8),
    genus           VARCHAR(30),
    q2              VARCHAR(8),
    q3              VARCHAR(8),
    sub_genus       VARCHAR(30),
    q4              VARCHAR(8)
);

-- Names are looked up with letter case ignored, and searched with LIKE.
CREATE INDEX GENUS_BY_UPPER_NAME ON GENUS (upper(genus));
CREATE INDEX GENUS_BY_NAME ON GENUS (genus COLLATE NOCASE);
CREATE INDEX GENUS_BY_SUBGENUS ON GENUS (sub_genus COLLATE NOCASE);
CREATE INDEX GENUS_BY_CATEGORY ON GENUS (cat_mnem COLLATE NOCASE);

-- q1 to q4 are the qualifiers before and behind the species, before and behind the subspecies.
CREATE TABLE SPECIES (
    spec_id         INTEGER PRIMARY KEY,
    gen_id          INTEGER,            -- GENUS.gen_id
    q1              VARCHAR(8),
    species         VARCHAR(30),
    q2              VARCHAR(8),
    q3              VARCHAR(8),
    sub_spec        VARCHAR(30),
    q4              VARCHAR(8),
    author          VARCHAR(79),
    year            SMALLINT,           -- of the description, 0 for none
    alphaCode       VARCHAR(255)        -- alphabetic code, a prefix may stand before a colon
);

CREATE INDEX SPECIES_BY_GENUS ON SPECIES (gen_id, upper(species));
CREATE INDEX SPECIES_BY_NAME ON SPECIES (species COLLATE NOCASE);
CREATE INDEX SPECIES_BY_SUBSPECIES ON SPECIES (sub_spec COLLATE NOCASE);

-- Preferred names: under a scheme a synonym has one.
CREATE TABLE SYNONYMY (
    spec_id         INTEGER,            -- SPECIES.spec_id, the synonym
    pref            INTEGER,            -- SPECIES.spec_id, the name to use instead
    sch_id          INTEGER,            -- SYNSCH.sch_id
    PRIMARY KEY (spec_id, sch_id)
);

CREATE INDEX SYNONYMY_BY_PREFERRED ON SYNONYMY (pref, sch_id);

CREATE TABLE SYNSCH (
    sch_id          INTEGER PRIMARY KEY,
    name            VARCHAR(80)
);

-- Numeric codes of taxa in several code systems.
CREATE TABLE SIPMCODE (
    spec_id         INTEGER,            -- SPECIES.spec_id
    ccode           INTEGER,            -- SIPMDICT.ccode
    sipm_code       INTEGER,
    PRIMARY KEY (spec_id, ccode)
);

CREATE INDEX SIPMCODE_BY_CODE ON SIPMCODE (sipm_code);

-- The code systems. The name has two spellings, for servers that reserve the word text.
CREATE TABLE SIPMDICT (
    ccode           INTEGER PRIMARY KEY,
    text            VARCHAR(80),
    txt             VARCHAR(80)         -- text by its other name
);

CREATE INDEX SIPMDICT_BY_TEXT ON SIPMDICT (text);
CREATE INDEX SIPMDICT_BY_TXT ON SIPMDICT (txt);

CREATE TRIGGER SIPMDICT_TEXT_INSERTED AFTER INSERT ON SIPMDICT
WHEN new.text IS NOT new.txt
BEGIN
    UPDATE SIPMDICT SET
        text = coalesce(new.text, new.txt),
        txt = coalesce(new.text, new.txt)
    WHERE ccode = new.ccode;
END;

CREATE TRIGGER SIPMDICT_TEXT_UPDATED AFTER UPDATE OF text, txt ON SIPMDICT
WHEN new.text IS NOT new.txt
BEGIN
    UPDATE SIPMDICT SET txt = new.text
    WHERE ccode = new.ccode AND new.text IS NOT old.text;
    UPDATE SIPMDICT SET text = new.txt
    WHERE ccode = new.ccode AND new.text IS old.text;
END;

CREATE TABLE TXREFS (
    spec_id         INTEGER PRIMARY KEY,    -- SPECIES.spec_id
    "references"    VARCHAR(240)
);

CREATE TABLE TXNOTES (
    spec_id         INTEGER PRIMARY KEY,    -- SPECIES.spec_id
    notes           VARCHAR(240)
);

-- The four disciplines, by their letters M, N, P and A.
CREATE TABLE DISCS (
    disc_id         VARCHAR(1) PRIMARY KEY,
    disc_name       VARCHAR(30),
    disc_abr        VARCHAR(5),
    disc_adj        VARCHAR(30)         -- adjective, as in Micropalaeontological
);

-- Categories of taxa, each of one discipline.
CREATE TABLE CATEGORY (
    cat_mnem        VARCHAR(5) PRIMARY KEY,
    cat_name        VARCHAR(53),
    disc_id         VARCHAR(1)          -- DISCS.disc_id
);

CREATE TABLE txgroup (
    name            VARCHAR(30) PRIMARY KEY
);

CREATE TABLE groupset (
    grpset_id       INTEGER PRIMARY KEY,
    name            VARCHAR(30)
);

CREATE INDEX groupset_by_name ON groupset (name);
