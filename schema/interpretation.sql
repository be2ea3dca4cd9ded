-- The interpretation of a well. interp_id tells versions apart, 0 being the default one; where a
-- table is read by interp_id alone, rows of the default version hold 0 and not NULL.

-- Zones between two samples: chronostratigraphy, lithostratigraphy, biozones, sequences.
CREATE TABLE IGD (
    well_id         INTEGER,            -- WELL_IDENT.well_id
    igd_type        INTEGER,            -- interpretation type code
    interp_id       INTEGER DEFAULT 0,
    hier            INTEGER,            -- rank
    top_id          INTEGER,            -- SAMPLES.samp_id
    base_id         INTEGER,            -- SAMPLES.samp_id
    sch_id          INTEGER,            -- IGD_SCH.sch_id
    upp_zone        INTEGER,            -- IGD_DICT.igd_id, upper term
    low_zone        INTEGER,            -- IGD_DICT.igd_id, lower term
    upp_inf         VARCHAR(80),        -- name of the upper term as stored with the zone
    low_inf         VARCHAR(80),        -- name of the lower term
    sep             VARCHAR(10),        -- separator between the two names, NULL for a hyphen
    q_uzone         VARCHAR(1),         -- Y when the upper term is questionable
    q_lzone         VARCHAR(1),         -- Y when the lower term is questionable
    top_bnd         INTEGER,            -- boundary quality, 1 to 7
    base_bnd        INTEGER,            -- boundary quality, 1 to 7
    top_analy       VARCHAR(255),       -- analyst of the top, biozones only
    base_analy      VARCHAR(255),       -- analyst of the base, biozones only
    modified        DATE,
    modifier        VARCHAR(5)          -- USERDEF.abr
);

CREATE INDEX IGD_BY_WELL ON IGD (well_id, igd_type, interp_id, hier);

-- Rock intervals of a well.
CREATE TABLE ZRILITH (
    well_id         INTEGER,            -- WELL_IDENT.well_id
    top_depth       DOUBLE,             -- m
    base_depth      DOUBLE,             -- m
    lith_id         INTEGER             -- LITHDESC.lith_id
);

CREATE INDEX ZRILITH_BY_TOP ON ZRILITH (well_id, top_depth);

-- Accessories, qualifiers, stringers and free texts beside the rock intervals.
CREATE TABLE ZRQLITH (
    well_id         INTEGER,            -- WELL_IDENT.well_id
    top_depth       DOUBLE,             -- m
    base_depth      DOUBLE,             -- m
    lith_id         INTEGER,            -- LITHDESC.lith_id
    type            VARCHAR(1),         -- A accessory, Q qualifier, S stringer, Z free text
    alignment       VARCHAR(1),         -- L left
    plotpos         DOUBLE,             -- place across the column
    txt             VARCHAR(80)         -- the free text
);

CREATE INDEX ZRQLITH_BY_TOP ON ZRQLITH (well_id, top_depth, plotpos);

-- Lithostratigraphic codes between two samples. A new code replaces those that share an end.
CREATE TABLE ZRLITHO (
    top_id          INTEGER,            -- SAMPLES.samp_id
    base_id         INTEGER,            -- SAMPLES.samp_id
    lithcode        INTEGER
);

CREATE INDEX ZRLITHO_BY_TOP ON ZRLITHO (top_id);
CREATE INDEX ZRLITHO_BY_BASE ON ZRLITHO (base_id);

-- Palaeoenvironment between two samples: from term up to term ud at the top, from lp to ld at the
-- base. Terms are places in the scheme, counted from 1; a missing one follows the others.
CREATE TABLE IGD_ENV (
    well_id         INTEGER,            -- WELL_IDENT.well_id
    interp_id       INTEGER,            -- 0 or NULL for the default version
    top_id          INTEGER,            -- SAMPLES.samp_id
    base_id         INTEGER,            -- SAMPLES.samp_id
    up              INTEGER,
    ud              INTEGER,
    lp              INTEGER,
    ld              INTEGER,
    qual            INTEGER,            -- qualifier term, 0 for none
    envsch_id       INTEGER,            -- ENV_SCH.envsch_id
    modified        DATE,
    modifier        VARCHAR(5)          -- USERDEF.abr
);

CREATE INDEX IGD_ENV_BY_WELL ON IGD_ENV (well_id, interp_id);

CREATE TABLE CASING (
    well_id         INTEGER,            -- WELL_IDENT.well_id
    depth           DOUBLE,             -- m, of the shoe
    diam            VARCHAR(9)          -- inches as text, fractions kept as in 13 3/8
);

CREATE INDEX CASING_BY_WELL ON CASING (well_id);

CREATE TABLE WELLSMARK (
    well_id         INTEGER,            -- WELL_IDENT.well_id
    depth           DOUBLE,             -- m
    colour          VARCHAR(20)
);

CREATE INDEX WELLSMARK_BY_WELL ON WELLSMARK (well_id);

-- Surfaces picked at samples.
CREATE TABLE SQPICK (
    well_id         INTEGER,            -- WELL_IDENT.well_id
    interp_id       INTEGER DEFAULT 0,
    samp_id         INTEGER,            -- SAMPLES.samp_id
    surface_id      INTEGER,            -- SURFACE.surface_id
    inf             VARCHAR(255),
    bnd             INTEGER,            -- boundary quality, 1 to 7
    qualifier       VARCHAR(1)
);

CREATE INDEX SQPICK_BY_WELL ON SQPICK (well_id, interp_id);

-- Comments over depth intervals.
CREATE TABLE INTCMMNTS (
    well_id         INTEGER,            -- WELL_IDENT.well_id
    interp_id       INTEGER DEFAULT 0,
    top_depth       DOUBLE,             -- m
    base_depth      DOUBLE,             -- m
    comments        VARCHAR(2000)
);

CREATE INDEX INTCMMNTS_BY_WELL ON INTCMMNTS (well_id, interp_id);

-- Events of the dictionary placed at samples.
CREATE TABLE EVENTS (
    ev_id           INTEGER,            -- EVENTDIC.ev_id
    well_id         INTEGER,            -- WELL_IDENT.well_id
    interp_id       INTEGER DEFAULT 0,
    ev_type         VARCHAR(1),         -- F top, L base, in the order of drilling
    samp_id         INTEGER,            -- SAMPLES.samp_id
    disc_id         VARCHAR(1),         -- DISCS.disc_id
    analyst         VARCHAR(255),
    qualifier       VARCHAR(255),
    comments        VARCHAR(2000),
    source          VARCHAR(255),
    company         VARCHAR(255),
    modified        DATE
);

CREATE INDEX EVENTS_BY_WELL ON EVENTS (well_id, interp_id);
CREATE INDEX EVENTS_BY_ENTRY ON EVENTS (ev_id);
