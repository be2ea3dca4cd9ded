-- Dictionaries and schemes that interpretations draw their terms from.

-- A named dictionary of terms of one interpretation type.
CREATE TABLE IGD_SCH (
    sch_id          INTEGER PRIMARY KEY,
    name            VARCHAR(80),
    igd_type        INTEGER,            -- interpretation type code
    created         DATE,
    creator         VARCHAR(5)          -- USERDEF.abr
);

CREATE INDEX IGD_SCH_BY_NAME ON IGD_SCH (name);

-- One term of a scheme.
CREATE TABLE IGD_DICT (
    igd_id          INTEGER PRIMARY KEY,
    sch_id          INTEGER,            -- IGD_SCH.sch_id
    igd_type        INTEGER,            -- interpretation type code
    hier            INTEGER,            -- rank, 1 (widest) to 8
    name            VARCHAR(80),
    abr             VARCHAR(5),
    u_age           DOUBLE,             -- Ma, upper (younger) age
    l_age           DOUBLE,             -- Ma, lower (older) age
    red             SMALLINT,           -- 0 to 255; black, 0 0 0, is shown as white
    green           SMALLINT,
    blue            SMALLINT,
    created         DATE,
    creator         VARCHAR(5)          -- USERDEF.abr
);

-- The order in which a scheme is loaded; also gives its age span.
CREATE INDEX IGD_DICT_BY_AGE ON IGD_DICT (sch_id, u_age, hier, l_age);
CREATE INDEX IGD_DICT_BY_ABBREVIATION ON IGD_DICT (sch_id, abr);

-- Lithologies. Keys up to 999 are reserved and never offered. Key, description and abbreviation have
-- two spellings each: single samples and intervals read the first, the samples of a well the second.
CREATE TABLE LITHDESC (
    lith_id         INTEGER,
    lithcode        INTEGER,            -- lith_id by its other name
    descr           VARCHAR(81),
    lithdescr       VARCHAR(81),        -- descr by its other name
    abr             VARCHAR(10),
    lithabr         VARCHAR(10),        -- abr by its other name
    cmp             VARCHAR(1),         -- N main lithology, A accessory, Q or Y qualifier, S stringer
    UNIQUE (lith_id),
    UNIQUE (lithcode)
);

CREATE TRIGGER LITHDESC_INSERTED AFTER INSERT ON LITHDESC
WHEN (new.lith_id, new.descr, new.abr) IS NOT (new.lithcode, new.lithdescr, new.lithabr)
BEGIN
    UPDATE LITHDESC SET
        lith_id = coalesce(new.lith_id, new.lithcode),
        lithcode = coalesce(new.lith_id, new.lithcode),
        descr = coalesce(new.descr, new.lithdescr),
        lithdescr = coalesce(new.descr, new.lithdescr),
        abr = coalesce(new.abr, new.lithabr),
        lithabr = coalesce(new.abr, new.lithabr)
    WHERE rowid = new.rowid;
END;

CREATE TRIGGER LITHDESC_KEY_UPDATED AFTER UPDATE OF lith_id, lithcode ON LITHDESC
WHEN new.lith_id IS NOT new.lithcode
BEGIN
    UPDATE LITHDESC SET lithcode = new.lith_id
    WHERE rowid = new.rowid AND new.lith_id IS NOT old.lith_id;
    UPDATE LITHDESC SET lith_id = new.lithcode
    WHERE rowid = new.rowid AND new.lith_id IS old.lith_id;
END;

CREATE TRIGGER LITHDESC_DESCRIPTION_UPDATED AFTER UPDATE OF descr, lithdescr ON LITHDESC
WHEN new.descr IS NOT new.lithdescr
BEGIN
    UPDATE LITHDESC SET lithdescr = new.descr
    WHERE rowid = new.rowid AND new.descr IS NOT old.descr;
    UPDATE LITHDESC SET descr = new.lithdescr
    WHERE rowid = new.rowid AND new.descr IS old.descr;
END;

CREATE TRIGGER LITHDESC_ABBREVIATION_UPDATED AFTER UPDATE OF abr, lithabr ON LITHDESC
WHEN new.abr IS NOT new.lithabr
BEGIN
    UPDATE LITHDESC SET lithabr = new.abr
    WHERE rowid = new.rowid AND new.abr IS NOT old.abr;
    UPDATE LITHDESC SET abr = new.lithabr
    WHERE rowid = new.rowid AND new.abr IS old.abr;
END;

-- A choice of lithologies to offer.
CREATE TABLE ZRLTHSCH (
    lthsch_id       INTEGER PRIMARY KEY,
    descr           VARCHAR(41)
);

CREATE TABLE ZRLTHMBR (
    lthsch_id       INTEGER,            -- ZRLTHSCH.lthsch_id
    lith_id         INTEGER,            -- LITHDESC.lith_id
    sort_order      INTEGER,
    PRIMARY KEY (lthsch_id, lith_id)
);

CREATE INDEX ZRLTHMBR_BY_ORDER ON ZRLTHMBR (lthsch_id, sort_order, lith_id);

-- Ordered scales of depositional environments, at most 20 terms each.
CREATE TABLE ENV_SCH (
    envsch_id       INTEGER PRIMARY KEY,
    name            VARCHAR(80)
);

CREATE INDEX ENV_SCH_BY_NAME ON ENV_SCH (name);

CREATE TABLE ENVSCHMBR (
    envsch_id       INTEGER,            -- ENV_SCH.envsch_id
    term_no         INTEGER,            -- orders the terms; a term is known by its place
    term            VARCHAR(79),
    red             SMALLINT,           -- 0 to 255
    green           SMALLINT,
    blue            SMALLINT,
    PRIMARY KEY (envsch_id, term_no)
);

-- Dated horizons that picks name.
CREATE TABLE SURFACE (
    surface_id      INTEGER PRIMARY KEY,
    sch_id          INTEGER,            -- IGD_SCH.sch_id
    age             DOUBLE,             -- Ma
    name            VARCHAR(255),
    type            INTEGER
);

-- Named events, mostly the top or base of the range of a taxon.
CREATE TABLE EVENTDIC (
    ev_id           INTEGER PRIMARY KEY,
    spec_id         INTEGER,            -- SPECIES.spec_id, 0 for an event without a taxon
    ev_type         VARCHAR(1),         -- R paired range event, any other single
    generate        VARCHAR(1),         -- Y or N
    name            VARCHAR(100),
    creator         VARCHAR(5),         -- USERDEF.abr
    created         DATE
);

CREATE INDEX EVENTDIC_BY_NAME ON EVENTDIC (name);
CREATE INDEX EVENTDIC_BY_TAXON ON EVENTDIC (spec_id, ev_type);

-- Reference scales onto which events are placed, in composite standard units.
CREATE TABLE CMPSTD (
    std_id          INTEGER PRIMARY KEY,
    name            VARCHAR(80),
    creator         VARCHAR(5),         -- USERDEF.abr
    created         DATE,
    topcsu          DOUBLE,             -- value at the top, above basecsu on a descending scale
    basecsu         DOUBLE,
    units           VARCHAR(20)         -- name of the unit, CSU when nothing better is known
);

CREATE INDEX CMPSTD_BY_NAME ON CMPSTD (name);

CREATE TABLE CMPSTDEV (
    std_id          INTEGER,            -- CMPSTD.std_id
    ev_id           INTEGER,            -- EVENTDIC.ev_id
    ev_type         VARCHAR(1),         -- F top, L base
    csu             DOUBLE,
    PRIMARY KEY (std_id, ev_id, ev_type)
);

CREATE INDEX CMPSTDEV_BY_POSITION ON CMPSTDEV (std_id, csu);

-- Ladders of abundance levels, at most twelve levels each.
CREATE TABLE ABNSCHME (
    scheme_id       INTEGER PRIMARY KEY,
    name            VARCHAR(25)
);

CREATE INDEX ABNSCHME_BY_NAME ON ABNSCHME (name);

CREATE TABLE ABNSCHMBR (
    scheme_id       INTEGER,            -- ABNSCHME.scheme_id
    entry_no        INTEGER,            -- place on the ladder, lowest level first
    entry_name      VARCHAR(25),
    abr             VARCHAR(4),
    min             SMALLINT,           -- lowest count of the level
    output_val      INTEGER,            -- count that the level stands for, 0 for its minimum
    PRIMARY KEY (scheme_id, entry_no)
);
