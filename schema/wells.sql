-- Wells and measured sections: identity, header, depth corrections.

-- The header of a well. Reference levels and depths of this table alone are in the units of the
-- well; every other depth of the database is in metres.
CREATE TABLE WELLS (
    well_code       VARCHAR(25) PRIMARY KEY,
    well_name       VARCHAR(25),
    operator        VARCHAR(50),
    country         VARCHAR(25),
    county          VARCHAR(30),
    ocs             VARCHAR(10),
    field           VARCHAR(20),
    grid_x          INTEGER,
    grid_y          INTEGER,
    lat_dec         DOUBLE,             -- decimal degrees, north positive
    long_dec        DOUBLE,             -- decimal degrees, east positive
    geoDatum        VARCHAR(255),       -- geodetic datum of the position
    spud_date       DATE,               -- drilling began
    comp_date       DATE,               -- completed
    td              DOUBLE,             -- total depth
    sl              DOUBLE,             -- sea level
    sb              DOUBLE,             -- sea bed
    rte             DOUBLE,             -- rotary table elevation
    kicko           DOUBLE,             -- kick-off depth of a deviated well
    datum           SMALLINT,           -- depth datum code
    type            VARCHAR(1),         -- W well, O outcrop (measured upwards)
    units           VARCHAR(1)          -- M metres, F feet: how depths are shown and entered
);

CREATE INDEX WELLS_BY_NAME ON WELLS (well_name);

-- The number under which everything else knows a well.
CREATE TABLE WELL_IDENT (
    well_id         INTEGER PRIMARY KEY,
    well_code       VARCHAR(25),        -- WELLS.well_code
    descrip         VARCHAR(2000)
);

CREATE INDEX WELL_IDENT_BY_CODE ON WELL_IDENT (well_code);

-- Headers kept by somebody else, such as a company register, for the optional refresh of WELLS.
-- Shipped empty: a well without a row here keeps its own header. A site may drop the table and put
-- a view of the same name, with any of these columns, in its place.
CREATE TABLE WELLS_MASTER (
    well_code       VARCHAR(25) PRIMARY KEY,
    WELL_NAME       VARCHAR(25),
    OPERATOR        VARCHAR(50),
    COUNTRY         VARCHAR(25),
    COUNTY          VARCHAR(30),
    OCS             VARCHAR(10),
    FIELD           VARCHAR(20),
    GRID_X          INTEGER,
    GRID_Y          INTEGER,
    SPUD_DATE       DATE,
    COMP_DATE       DATE,
    LAT_DEC         DOUBLE,
    LONG_DEC        DOUBLE,
    TD              DOUBLE,
    SL              DOUBLE,
    SB              DOUBLE,
    RTE             DOUBLE,
    KICKO           DOUBLE,
    DATUM           SMALLINT,
    TYPE            VARCHAR(1),
    UNITS           VARCHAR(1),
    GEODATUM        VARCHAR(255)
);

-- The way of a deviated well.
CREATE TABLE WELLTVD (
    well_id         INTEGER,            -- WELL_IDENT.well_id
    ddepth          DOUBLE,             -- m, measured along the well
    tvdepth         DOUBLE              -- m, true vertical
);

CREATE INDEX WELLTVD_BY_DEPTH ON WELLTVD (well_id, ddepth);

CREATE TABLE CORES (
    well_id         INTEGER,            -- WELL_IDENT.well_id
    top_depth       DOUBLE,             -- m
    base_depth      DOUBLE,             -- m
    corenum         VARCHAR(20),        -- number of the core, kept as text
    recovered       VARCHAR(1)
);

CREATE INDEX CORES_BY_TOP ON CORES (well_id, top_depth);

-- What moves a core onto the logs, given at the depth of its top and of its base.
CREATE TABLE CORESHIFT (
    well_id         INTEGER,            -- WELL_IDENT.well_id
    depth           DOUBLE,             -- m, a top or base of CORES
    shift           DOUBLE              -- m, added to core depths
);

CREATE INDEX CORESHIFT_BY_DEPTH ON CORESHIFT (well_id, depth);
