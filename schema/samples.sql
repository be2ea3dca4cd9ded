-- Samples, their lithology and their age ratios.

-- One rock sample. Loaders read top_depth and base_depth, the update of a sample writes depth and
-- bot_depth: two spellings of the same two values, kept in step below.
CREATE TABLE SAMPLES (
    samp_id         INTEGER PRIMARY KEY,
    well_id         INTEGER,            -- WELL_IDENT.well_id
    top_depth       DOUBLE,             -- m
    base_depth      DOUBLE,             -- m
    depth           DOUBLE,             -- m, top_depth by its other name
    bot_depth       DOUBLE,             -- m, base_depth by its other name
    type            VARCHAR(5),         -- CU cuttings, SC sidewall core, CO core, OC outcrop, LOG
    label           VARCHAR(15),
    grid_x          INTEGER,
    grid_y          INTEGER,
    created         DATE,
    modified        DATE,
    creator         VARCHAR(5),         -- USERDEF.abr
    modifier        VARCHAR(5)          -- USERDEF.abr
);

-- The index carries samp_id behind well_id, so the sample list of a well comes in order unsorted.
CREATE INDEX SAMPLES_BY_WELL ON SAMPLES (well_id);

CREATE TRIGGER SAMPLES_DEPTHS_INSERTED AFTER INSERT ON SAMPLES
WHEN new.top_depth IS NOT new.depth OR new.base_depth IS NOT new.bot_depth
BEGIN
    UPDATE SAMPLES SET
        top_depth = coalesce(new.top_depth, new.depth),
        depth = coalesce(new.top_depth, new.depth),
        base_depth = coalesce(new.base_depth, new.bot_depth),
        bot_depth = coalesce(new.base_depth, new.bot_depth)
    WHERE samp_id = new.samp_id;
END;

CREATE TRIGGER SAMPLES_TOP_UPDATED AFTER UPDATE OF top_depth, depth ON SAMPLES
WHEN new.top_depth IS NOT new.depth
BEGIN
    UPDATE SAMPLES SET depth = new.top_depth
    WHERE samp_id = new.samp_id AND new.top_depth IS NOT old.top_depth;
    UPDATE SAMPLES SET top_depth = new.depth
    WHERE samp_id = new.samp_id AND new.top_depth IS old.top_depth;
END;

CREATE TRIGGER SAMPLES_BASE_UPDATED AFTER UPDATE OF base_depth, bot_depth ON SAMPLES
WHEN new.base_depth IS NOT new.bot_depth
BEGIN
    UPDATE SAMPLES SET bot_depth = new.base_depth
    WHERE samp_id = new.samp_id AND new.base_depth IS NOT old.base_depth;
    UPDATE SAMPLES SET base_depth = new.bot_depth
    WHERE samp_id = new.samp_id AND new.base_depth IS old.base_depth;
END;

-- The lithologies that make up a sample. The share has two spellings: the sample reads percnt, the
-- well reads percent.
CREATE TABLE ZRSLITH (
    well_id         INTEGER,            -- WELL_IDENT.well_id
    samp_id         INTEGER,            -- SAMPLES.samp_id
    lith_id         INTEGER,            -- LITHDESC.lith_id
    percent         INTEGER,            -- percent of the sample
    percnt          INTEGER,            -- percent by its other name
    PRIMARY KEY (well_id, samp_id, lith_id)
);

CREATE TRIGGER ZRSLITH_PERCENT_INSERTED AFTER INSERT ON ZRSLITH
WHEN new.percent IS NOT new.percnt
BEGIN
    UPDATE ZRSLITH SET
        percent = coalesce(new.percent, new.percnt),
        percnt = coalesce(new.percent, new.percnt)
    WHERE rowid = new.rowid;
END;

CREATE TRIGGER ZRSLITH_PERCENT_UPDATED AFTER UPDATE OF percent, percnt ON ZRSLITH
WHEN new.percent IS NOT new.percnt
BEGIN
    UPDATE ZRSLITH SET percnt = new.percent
    WHERE rowid = new.rowid AND new.percent IS NOT old.percent;
    UPDATE ZRSLITH SET percent = new.percnt
    WHERE rowid = new.rowid AND new.percent IS old.percent;
END;

-- Age-ratio records: an age with its error bars and a ratio, one per sample and interpretation.
CREATE TABLE ZRSSR (
    well_id         INTEGER,            -- WELL_IDENT.well_id
    samp_id         INTEGER,            -- SAMPLES.samp_id
    interp_id       INTEGER,            -- interpretation, 0 or NULL for none
    ratio           DOUBLE,
    age             DOUBLE,             -- Ma
    age_below       DOUBLE,             -- Ma
    ageplus         DOUBLE,             -- Ma, error towards older
    ageminus        DOUBLE,             -- Ma, error towards younger
    PRIMARY KEY (well_id, samp_id, interp_id)
);
